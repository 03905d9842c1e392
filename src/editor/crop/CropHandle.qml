import QtQuick
import Quillet.Ui

/**
 * A handle of the crop box: a corner drawn as an L, or the middle of an edge drawn as a bar, with a
 * touch area round it. Dragging it tells the controller how far the finger has gone.
 */
Item {
    id: root

    /** CropViewController.Handle: clockwise from the top left corner. */
    required property int handle
    required property var vc

    // Where the handle sits on the box, as fractions of its width and height.
    readonly property real across: [0, 0.5, 1, 1, 1, 0.5, 0, 0][root.handle]
    readonly property real down: [0, 0, 0, 0.5, 1, 1, 1, 0.5][root.handle]
    readonly property bool corner: root.handle % 2 === 0
    readonly property int thickness: 3
    readonly property int reach: Theme.spacing * 2

    width: Theme.touchTarget
    height: Theme.touchTarget
    x: parent.width * root.across - width / 2
    y: parent.height * root.down - height / 2

    // Corners: two bars just outside the box; edges: one bar along the edge.
    Rectangle {
        visible: root.corner || root.down === 0.5
        color: Theme.textOnAccent
        width: root.thickness
        height: root.reach
        x: root.width / 2 - (root.across === 0 ? root.thickness : 0)
        y: root.down === 0.5 ? root.height / 2 - root.reach / 2
            : root.down === 0 ? root.height / 2 - root.thickness : root.height / 2 - root.reach + root.thickness
    }
    Rectangle {
        visible: root.corner || root.across === 0.5
        color: Theme.textOnAccent
        width: root.reach
        height: root.thickness
        y: root.height / 2 - (root.down === 0 ? root.thickness : 0)
        x: root.across === 0.5 ? root.width / 2 - root.reach / 2
            : root.across === 0 ? root.width / 2 - root.thickness : root.width / 2 - root.reach + root.thickness
    }

    DragHandler {
        target: null
        grabPermissions: PointerHandler.CanTakeOverFromAnything
        onActiveChanged: active ? root.vc.beginHandleDrag(root.handle) : root.vc.endHandleDrag()
        onActiveTranslationChanged: {
            if (active)
                root.vc.moveHandle(activeTranslation.x, activeTranslation.y)
        }
    }
}
