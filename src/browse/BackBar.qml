import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

/** The bar of a pushed screen: back, and the screen's title in the middle. */
ToolBar {
    id: root

    required property var vc

    RowLayout {
        anchors.fill: parent
        ToolButton {
            objectName: "backButton"
            text: "\u2039"
            font.pixelSize: 28
            onClicked: root.vc.goBack()
        }
        Label {
            Layout.fillWidth: true
            text: root.vc.title
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            font.family: "Rubik"
            font.weight: Font.Medium
            font.pixelSize: 18
        }
        Item {
            Layout.preferredWidth: 48
        }
    }
}
