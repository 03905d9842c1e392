import QtQuick
import Quillet.Editor

/**
 * Touch and mouse input for one picture slot, laid over its hole on the canvas: a tap (the placeholder's
 * own tap while an outlined slot is empty), a double tap, a one-finger move and a two-finger pinch and
 * turn of the picture inside. The slot decides whether they count; this file only converts coordinates
 * and hands each recogniser's values on as the slot's kind counts them.
 */
Item {
    id: root

    /** The slot, a StaticResizableImageView or a BorderedResizableImageView. */
    required property SlotView slotView
    /** Screen units per canvas point; the parent item is the canvas. */
    property real canvasScale: 1

    readonly property size layerSize: root.slotView.layerSize
    readonly property rect hole: root.slotView.holeRect

    x: (root.slotView.layerCenter.x - root.layerSize.width / 2) * root.canvasScale
    y: (root.slotView.layerCenter.y - root.layerSize.height / 2) * root.canvasScale
    width: root.layerSize.width * root.canvasScale
    height: root.layerSize.height * root.canvasScale
    rotation: root.slotView.rotationDegrees

    // A scene point in the slot's own coordinates (the item turns with the slot).
    function inSlot(scenePoint) {
        const p = root.mapFromItem(null, scenePoint.x, scenePoint.y)
        return Qt.point(p.x / root.canvasScale, p.y / root.canvasScale)
    }

    Item {
        x: root.hole.x * root.canvasScale
        y: root.hole.y * root.canvasScale
        width: root.hole.width * root.canvasScale
        height: root.hole.height * root.canvasScale

        TapHandler {
            onSingleTapped: root.slotView.empty ? root.slotView.plusTapGesture() : root.slotView.tapGesture()
            onDoubleTapped: root.slotView.doubleTapGesture()
        }
        DragHandler {
            id: move
            property point last
            target: null
            onActiveChanged: {
                if (move.active) {
                    move.last = root.inSlot(move.centroid.scenePressPosition)
                    root.slotView.panGesture(SlotView.Began, Qt.point(0, 0))
                } else {
                    root.slotView.panGesture(SlotView.Ended, Qt.point(0, 0))
                }
            }
            onCentroidChanged: {
                if (!move.active)
                    return
                const p = root.inSlot(move.centroid.scenePosition)
                root.slotView.panGesture(SlotView.Changed, Qt.point(p.x - move.last.x, p.y - move.last.y))
                move.last = p
            }
        }
        PinchHandler {
            id: pinch
            property real lastScale: 1
            property real lastRotation: 0
            target: null
            onActiveChanged: {
                const phase = pinch.active ? SlotView.Began : SlotView.Ended
                pinch.lastScale = 1
                pinch.lastRotation = 0
                root.slotView.pinchGesture(phase, 1)
                root.slotView.rotateGesture(phase, 0)
            }
            onUpdated: {
                if (!pinch.active)
                    return
                // An outlined slot counts the scale from the pinch's start, a picture slot step by step;
                // both take the turn step by step.
                root.slotView.pinchGesture(SlotView.Changed, root.slotView.pinchFromStart
                                           ? pinch.activeScale : pinch.activeScale / pinch.lastScale)
                root.slotView.rotateGesture(SlotView.Changed, (pinch.rotation - pinch.lastRotation) * Math.PI / 180)
                pinch.lastScale = pinch.activeScale
                pinch.lastRotation = pinch.rotation
            }
        }
    }
}
