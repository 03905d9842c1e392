import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Ui

/**
 * The editor's navigation bar: back on the left; on the right duplicate, layers, undo, redo and SAVE, each
 * enabled as the session says. SAVE narrows on screens under 375 points. A video editor's sound button
 * takes its place before duplicate when the session has one.
 */
Rectangle {
    id: root

    required property var vc
    /** The screen's width in points, which sets SAVE's width. */
    property real screenWidth: width

    implicitHeight: Theme.barHeight
    color: Theme.accent

    RowLayout {
        anchors.fill: parent
        anchors.rightMargin: Theme.spacing
        spacing: 0
        IconButton {
            objectName: "backButton"
            Layout.preferredWidth: 53
            Layout.preferredHeight: Math.max(31, Theme.touchTarget)
            asset: "ic_back"
            color: Theme.textOnAccent
            onClicked: root.vc.requestLeave()
        }
        Item { Layout.fillWidth: true }
        IconButton {
            objectName: "soundButton"
            visible: root.vc.hasSoundButton
            Layout.preferredWidth: Theme.touchTarget
            Layout.preferredHeight: Theme.touchTarget
            asset: root.vc.soundMuted ? "ic_volume_mute" : "ic_volume"
            color: Theme.textOnAccent
            enabled: root.vc.soundEnabled
            onClicked: root.vc.soundPressed()
        }
        IconButton {
            objectName: "duplicateButton"
            Layout.preferredWidth: Theme.touchTarget
            Layout.preferredHeight: Theme.touchTarget
            asset: "menu_duplicate"
            color: Theme.textOnAccent
            enabled: root.vc.canDuplicate
            onClicked: root.vc.duplicateClicked()
        }
        IconButton {
            objectName: "layerButton"
            Layout.preferredWidth: Theme.touchTarget
            Layout.preferredHeight: Theme.touchTarget
            asset: "ic_layer"
            color: Theme.textOnAccent
            enabled: root.vc.canShowLayers
            onClicked: root.vc.toggleLayers()
        }
        IconButton {
            objectName: "undoButton"
            Layout.preferredWidth: Theme.touchTarget
            Layout.preferredHeight: Theme.touchTarget
            asset: "undo"
            color: Theme.textOnAccent
            enabled: root.vc.canUndo
            onClicked: root.vc.undo()
        }
        IconButton {
            objectName: "redoButton"
            Layout.preferredWidth: Theme.touchTarget
            Layout.preferredHeight: Theme.touchTarget
            asset: "redo"
            color: Theme.textOnAccent
            enabled: root.vc.canRedo
            onClicked: root.vc.redo()
        }
        AbstractButton {
            objectName: "saveButton"
            Layout.leftMargin: Theme.spacing / 2
            Layout.preferredWidth: root.vc.menus.saveButtonWidth(root.screenWidth)
            Layout.preferredHeight: Theme.touchTarget
            onClicked: root.vc.savePressed()
            background: Item {
                Rectangle {
                    anchors.centerIn: parent
                    width: parent.width
                    height: 24
                    radius: 3
                    color: "white"
                }
            }
            contentItem: Label {
                text: qsTr("SAVE")
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                color: "black"
                font.family: "Rubik"
                font.weight: Font.Medium
                font.pixelSize: 15
            }
        }
    }
}
