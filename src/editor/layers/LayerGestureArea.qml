import QtQuick
import Quillet.Editor.Layers

/**
 * Touch and mouse input for one sticker or text layer, laid over it on the canvas. It follows the
 * layer's geometry and feeds the layer's gesture actions with their phases: tap, one-finger move, pinch
 * (and the wheel on a desktop), two-finger turn, and the close, rotate and resize handles. All geometry
 * and decisions stay in the layer; this file only converts coordinates.
 */
Item {
    id: root

    /** The layer, a ResizableImageView or a ResizableView. */
    required property LayerView layerView
    /** Screen units per canvas point; the parent item is the canvas. */
    property real canvasScale: 1

    readonly property size layerSize: root.layerView.layerSize
    readonly property rect area: root.layerView.contentRect

    x: (root.layerView.layerCenter.x - root.layerSize.width / 2) * root.canvasScale
    y: (root.layerView.layerCenter.y - root.layerSize.height / 2) * root.canvasScale
    width: root.layerSize.width * root.canvasScale
    height: root.layerSize.height * root.canvasScale
    rotation: root.layerView.rotationDegrees

    // A scene point in the layer's own coordinates (the item turns with the layer).
    function inLayer(scenePoint) {
        const p = root.mapFromItem(null, scenePoint.x, scenePoint.y)
        return Qt.point(p.x / root.canvasScale, p.y / root.canvasScale)
    }
    // A scene point in the canvas's coordinates, the layer's superview.
    function inCanvas(scenePoint) {
        const p = root.parent.mapFromItem(null, scenePoint.x, scenePoint.y)
        return Qt.point(p.x / root.canvasScale, p.y / root.canvasScale)
    }

    Item {
        id: content
        x: root.area.x * root.canvasScale
        y: root.area.y * root.canvasScale
        width: root.area.width * root.canvasScale
        height: root.area.height * root.canvasScale

        TapHandler {
            onTapped: root.layerView.tapGesture()
        }
        DragHandler {
            id: move
            property point last
            target: null
            onActiveChanged: {
                if (move.active) {
                    // A pan's translation counts from the touch-down, the slop included.
                    const start = root.inCanvas(move.centroid.scenePressPosition)
                    const now = root.inCanvas(move.centroid.scenePosition)
                    move.last = now
                    root.layerView.panGesture(LayerView.Began, Qt.point(now.x - start.x, now.y - start.y))
                } else {
                    root.layerView.panGesture(LayerView.Ended, Qt.point(0, 0))
                }
            }
            onCentroidChanged: {
                if (!move.active)
                    return
                const p = root.inCanvas(move.centroid.scenePosition)
                root.layerView.panGesture(LayerView.Changed, Qt.point(p.x - move.last.x, p.y - move.last.y))
                move.last = p
            }
        }
        PinchHandler {
            id: pinch
            target: null
            // One gesture, one change: the layer turns too when its kind turns with two fingers.
            onActiveChanged: root.layerView.twoFingerGesture(pinch.active ? LayerView.Began : LayerView.Ended,
                                                             pinch.activeScale, pinch.rotation * Math.PI / 180)
            onUpdated: {
                if (pinch.active)
                    root.layerView.twoFingerGesture(LayerView.Changed, pinch.activeScale,
                                                    pinch.rotation * Math.PI / 180)
            }
        }
        WheelHandler {
            id: wheel
            property real scale: 1
            target: null
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            onWheel: event => {
                if (!wheel.active) {
                    wheel.scale = 1
                    root.layerView.pinchGesture(LayerView.Began, 1)
                }
                wheel.scale *= Math.pow(1.0015, event.angleDelta.y)
                root.layerView.pinchGesture(LayerView.Changed, wheel.scale)
            }
            onActiveChanged: {
                if (!wheel.active)
                    root.layerView.pinchGesture(LayerView.Ended, wheel.scale)
            }
        }
    }

    component Handle: Item {
        required property real side
        required property bool shown
        width: side
        height: side
        visible: shown
    }

    Handle {
        side: root.layerView.handleSize * root.canvasScale
        shown: root.layerView.selected
        objectName: "cancelHandle"
        x: 0
        y: 0
        TapHandler {
            onTapped: root.layerView.buttonTapGesture()
        }
    }
    Handle {
        side: root.layerView.handleSize * root.canvasScale
        shown: root.layerView.selected
        objectName: "rotateHandle"
        x: 0
        y: root.height - height
        DragHandler {
            id: turn
            target: null
            onActiveChanged: root.layerView.buttonRotateGesture(turn.active ? LayerView.Began : LayerView.Ended,
                                                            root.inCanvas(turn.centroid.scenePosition))
            onCentroidChanged: {
                if (turn.active)
                    root.layerView.buttonRotateGesture(LayerView.Changed, root.inCanvas(turn.centroid.scenePosition))
            }
        }
    }
    Handle {
        side: root.layerView.handleSize * root.canvasScale
        shown: root.layerView.selected
        objectName: "resizeHandle"
        x: root.width - width
        y: root.height - height
        DragHandler {
            id: resize
            target: null
            onActiveChanged: root.layerView.buttonPanGesture(resize.active ? LayerView.Began : LayerView.Ended,
                                                         root.inLayer(resize.centroid.scenePosition))
            onCentroidChanged: {
                if (resize.active)
                    root.layerView.buttonPanGesture(LayerView.Changed, root.inLayer(resize.centroid.scenePosition))
            }
        }
    }
}
