import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Editor
import Quillet.Editor.Layers
import Quillet.Ui
import Quillet.Video

/** The editor screen shared by the editors: the bar, the fitted canvas with its layers, and the tool bars. */
Page {
    id: root
    required property var vc

    background: Rectangle { color: Theme.workspace }

    header: EditorNavBar {
        vc: root.vc
        screenWidth: root.width
    }

    Item {
        id: workArea
        objectName: "workArea"
        anchors.fill: parent
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
            TapHandler { onTapped: root.vc.menus.canvasTapped() }
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

    // The pop tip about fonts, over the bars, shown once.
    Rectangle {
        objectName: "popTip"
        visible: root.vc.menus.popTipShown
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.spacing
        width: Math.min(parent.width - Theme.margin * 2, tipText.implicitWidth + Theme.margin * 2)
        height: Math.max(Theme.touchTarget, tipText.implicitHeight + Theme.spacing * 2)
        radius: Theme.spacing
        color: "#E05863"
        Label {
            id: tipText
            anchors.fill: parent
            anchors.margins: Theme.spacing
            text: root.vc.menus.popTipText
            color: "white"
            font.family: "Rubik"
            font.pixelSize: 15
            wrapMode: Text.WordWrap
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
        TapHandler { onTapped: root.vc.menus.popTipTapped() }
    }

    footer: ToolBars {
        objectName: "toolBars"
        vc: root.vc
    }
}
