pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Editor.Layers
import Quillet.Ui

/** Text entry: the typed text in its demo font and colour, the colour strip, the font list and Done. */
Page {
    id: root

    required property AddTextVC vc

    title: root.vc.title

    header: ToolBar {
        RowLayout {
            anchors.fill: parent
            Label {
                text: root.vc.title
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                color: Theme.textOnAccent
                font.family: Theme.titleFont
                font.weight: Font.Medium
                font.pixelSize: Theme.fontTitle
            }
            IconButton {
                objectName: "tickButton"
                asset: "tick"
                color: Theme.textOnAccent
                onClicked: root.vc.done()
            }
        }
    }

    ColumnLayout {
        anchors.fill: parent

        Frame {
            Layout.fillWidth: true
            Layout.preferredHeight: parent.height / 3
            TextArea {
                objectName: "demoText"
                anchors.fill: parent
                text: root.vc.demoText
                font: root.vc.demoFont
                color: root.vc.demoColor.valid ? root.vc.demoColor : palette.text
                wrapMode: TextEdit.Wrap
                horizontalAlignment: TextEdit.AlignHCenter
                onTextChanged: root.vc.demoText = text
            }
        }

        ListView {
            objectName: "colorStrip"
            Layout.fillWidth: true
            Layout.preferredHeight: 44
            orientation: ListView.Horizontal
            model: root.vc.colors
            delegate: Rectangle {
                required property var modelData
                required property int index
                width: 44
                height: 44
                color: modelData
                TapHandler {
                    onTapped: root.vc.selectColor(parent.index)
                }
            }
        }

        ListView {
            objectName: "fontList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            model: root.vc.fontRows
            delegate: ItemDelegate {
                required property var modelData
                required property int index
                width: ListView.view.width
                text: modelData.title
                font: modelData.font
                onClicked: root.vc.selectFont(index)
            }
        }
    }
}
