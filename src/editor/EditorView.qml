import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Editor
import Quillet.Editor.Layers

/** The editor screen shared by the editors: the bar, the fitted canvas with its layers, and the tool bar. */
Page {
    id: root
    required property var vc
    readonly property real barHeight: 56

    background: Rectangle { color: "#EFEAEC" }

    header: Rectangle {
        height: root.barHeight
        color: "#E05863"
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 12
            anchors.rightMargin: 12
            ToolButton {
                objectName: "backButton"
                text: "\u2039"
                font.pixelSize: 30
                palette.buttonText: "white"
                onClicked: root.vc.requestLeave()
            }
            Label {
                Layout.fillWidth: true
                text: qsTr("Edit")
                color: "white"
                font.family: "Rubik"
                font.weight: Font.Medium
                font.pixelSize: 18
                horizontalAlignment: Text.AlignHCenter
            }
            Item { width: 40; height: 1 }
        }
    }

    Item {
        id: workArea
        objectName: "workArea"
        anchors.fill: parent
        anchors.bottomMargin: 72
        onWidthChanged: root.vc.setWorkAreaSize(width, height)
        onHeightChanged: root.vc.setWorkAreaSize(width, height)

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
        height: 72
        color: "white"
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 12
            anchors.rightMargin: 12
            Label {
                Layout.fillWidth: true
                text: qsTr("Tap a layer to edit it")
                color: "#857A7E"
                font.family: "Montserrat"
                font.pixelSize: 13
            }
            ToolButton {
                objectName: "undoButton"
                text: "\u21B6"
                font.pixelSize: 24
                enabled: root.vc.canUndo
                onClicked: root.vc.undo()
            }
            ToolButton {
                objectName: "redoButton"
                text: "\u21B7"
                font.pixelSize: 24
                enabled: root.vc.canRedo
                onClicked: root.vc.redo()
            }
            ToolButton {
                objectName: "layerButton"
                text: qsTr("Layers")
                font.family: "Montserrat"
                enabled: root.vc.canShowLayers
                onClicked: root.vc.toggleLayers()
            }
        }
    }
}
