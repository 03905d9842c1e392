pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Quillet.Ui

/** The catalog strip: one tab per catalog, its name on its gradient; the selected one stands out. */
ListView {
    id: root

    required property var vc

    orientation: ListView.Horizontal
    spacing: Theme.spacing
    leftMargin: Theme.spacing
    rightMargin: Theme.spacing
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    model: root.vc ? root.vc.strip : null
    currentIndex: root.vc ? root.vc.selectedIndex : -1

    delegate: Rectangle {
        id: tab

        required property int index
        required property string name
        required property color leftColor
        required property color rightColor
        readonly property bool selected: root.vc !== null && tab.index === root.vc.selectedIndex

        anchors.verticalCenter: parent ? parent.verticalCenter : undefined
        width: label.implicitWidth + 2 * Theme.margin
        height: root.height - 2 * Theme.spacing
        radius: height / 2
        opacity: tab.selected ? 1 : 0.75
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: tab.leftColor }
            GradientStop { position: 1; color: tab.rightColor }
        }
        border.width: tab.selected ? 2 : 0
        border.color: Theme.surface

        Label {
            id: label
            anchors.centerIn: parent
            text: tab.name
            color: Theme.textOnAccent
            font.family: Theme.titleFont
            font.weight: tab.selected ? Font.Medium : Font.Normal
            font.pixelSize: Theme.fontBody
        }
        TapHandler {
            onTapped: root.vc.selectCatalog(tab.index)
        }
    }
}
