import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Editor
import Quillet.Editor.Layers
import Quillet.Ui
import Quillet.Video

/** The editor screen shared by the editors: the bar, the fitted canvas with its layers, and the tool bar. */
Page {
    id: root
    required property var vc

    background: Rectangle { color: Theme.workspace }

    header: Rectangle {
        height: Theme.barHeight
        color: Theme.accent
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.spacing / 2
            anchors.rightMargin: Theme.spacing / 2
            spacing: 0
            IconButton {
                objectName: "backButton"
                asset: "ic_back"
                color: Theme.textOnAccent
                onClicked: root.vc.requestLeave()
            }
            Label {
                Layout.fillWidth: true
                text: qsTr("Edit")
                color: Theme.textOnAccent
                font.family: Theme.titleFont
                font.weight: Font.Medium
                font.pixelSize: Theme.fontTitle
                elide: Text.ElideRight
            }
            IconButton {
                objectName: "soundButton"
                visible: root.vc.hasSoundButton
                asset: root.vc.soundMuted ? "ic_volume_mute" : "ic_volume"
                color: Theme.textOnAccent
                enabled: root.vc.soundEnabled
                onClicked: root.vc.soundPressed()
            }
            IconButton {
                objectName: "duplicateButton"
                asset: "menu_duplicate"
                color: Theme.textOnAccent
                enabled: root.vc.canDuplicate
                onClicked: root.vc.duplicateClicked()
            }
            IconButton {
                objectName: "layerButton"
                asset: "ic_layer"
                color: Theme.textOnAccent
                enabled: root.vc.canShowLayers
                onClicked: root.vc.toggleLayers()
            }
            IconButton {
                objectName: "undoButton"
                asset: "undo"
                color: Theme.textOnAccent
                enabled: root.vc.canUndo
                onClicked: root.vc.undo()
            }
            IconButton {
                objectName: "redoButton"
                asset: "redo"
                color: Theme.textOnAccent
                enabled: root.vc.canRedo
                onClicked: root.vc.redo()
            }
            Label {
                objectName: "saveButton"
                // The picture editors save here; the video editors export through their own flow.
                visible: typeof root.vc.savePressed === "function"
                text: qsTr("SAVE")
                color: Theme.textOnAccent
                font.family: Theme.titleFont
                font.weight: Font.Medium
                font.pixelSize: Theme.fontBody
                padding: Theme.spacing
                TapHandler { onTapped: root.vc.savePressed() }
            }
        }
    }

    Item {
        id: workArea
        objectName: "workArea"
        anchors.fill: parent
        anchors.bottomMargin: Theme.toolBarHeight
        onWidthChanged: root.vc.setWorkAreaSize(width, height)
        onHeightChanged: root.vc.setWorkAreaSize(width, height)

        // A video design's movie, under the canvas.
        Loader {
            objectName: "videoLayer"
            active: root.vc.videoView !== null
            x: root.vc.canvasFrame.x
            y: root.vc.canvasFrame.y
            width: root.vc.canvasFrame.width
            height: root.vc.canvasFrame.height
            sourceComponent: VideoViewItem {
                videoView: root.vc.videoView
            }
        }
        CanvasItem {
            id: canvas
            objectName: "canvas"
            anchors.fill: parent
            view: root.vc.contentView
        }
        Item {
            id: canvasSpace
            x: root.vc.canvasFrame.x
            y: root.vc.canvasFrame.y
            width: root.vc.canvasFrame.width
            height: root.vc.canvasFrame.height
            TapHandler { onTapped: root.vc.deselectAll(true) }
            Repeater {
                model: root.vc.slotViews
                delegate: SlotGestureArea {
                    required property var modelData
                    slotView: modelData
                    canvasScale: 1
                }
            }
            Repeater {
                model: root.vc.layerViews
                delegate: LayerGestureArea {
                    required property var modelData
                    layerView: modelData
                    canvasScale: 1
                }
            }
        }
    }

    LayerPanel {
        objectName: "layerContentView"
        anchors.fill: parent
        vc: root.vc
    }

    footer: Rectangle {
        height: Theme.toolBarHeight
        color: Theme.surface
        Label {
            anchors.fill: parent
            anchors.leftMargin: Theme.margin
            anchors.rightMargin: Theme.margin
            verticalAlignment: Text.AlignVCenter
            text: qsTr("Tap a layer to edit it")
            color: Theme.textMuted
            font.family: Theme.bodyFont
            font.pixelSize: Theme.fontBody
        }
    }
}
