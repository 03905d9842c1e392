pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Ui

/** "How To Use Fonts": the two pictures, one under the other. */
Page {
    id: root

    required property var vc

    title: root.vc.title
    background: Rectangle { color: Theme.background }

    header: ToolBar {
        RowLayout {
            anchors.fill: parent
            IconButton {
                objectName: "backButton"
                asset: "fontpicker_back"
                color: Theme.textOnAccent
                onClicked: root.vc.back()
            }
            Label {
                text: root.vc.title
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                color: Theme.textOnAccent
                font.family: Theme.titleFont
                font.weight: Font.Medium
                font.pixelSize: Theme.fontTitle
            }
            Item { implicitWidth: Theme.barHeight }
        }
    }

    ListView {
        objectName: "howToPictures"
        anchors.fill: parent
        spacing: Theme.spacing
        model: root.vc.images
        delegate: Image {
            required property string modelData
            width: ListView.view.width
            height: implicitWidth > 0 ? width * implicitHeight / implicitWidth : 0
            fillMode: Image.PreserveAspectFit
            source: modelData
            sourceSize.width: width * Screen.devicePixelRatio
        }
    }
}
