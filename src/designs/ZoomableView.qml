import QtQuick

/**
 * A picture fitted into the view, zoomed by pinch or double tap between `minimumZoom` and `maximumZoom`
 * and panned while zoomed. The picture item is the child declared inside; it fills its box. `turned`
 * shows it a quarter turned.
 */
Flickable {
    id: root

    /** The picture's own size in pixels. */
    required property size pictureSize
    property bool turned: false
    property real zoom: 1
    readonly property real minimumZoom: 1
    readonly property real maximumZoom: 4
    readonly property real doubleTapZoom: 2.5
    default property alias picture: box.data

    readonly property size uprightSize: root.turned ? Qt.size(root.pictureSize.height, root.pictureSize.width)
                                                    : root.pictureSize
    readonly property real fitScale: root.uprightSize.width > 0 && root.uprightSize.height > 0
                                     ? Math.min(root.width / root.uprightSize.width,
                                                root.height / root.uprightSize.height) : 0
    readonly property real shownWidth: root.uprightSize.width * root.fitScale * root.zoom
    readonly property real shownHeight: root.uprightSize.height * root.fitScale * root.zoom

    /** Zooms to `value`, keeping the point `at` of the content where it is on screen. */
    function zoomTo(value, at) {
        const next = Math.max(root.minimumZoom, Math.min(root.maximumZoom, value))
        const ratio = next / root.zoom
        const onScreen = Qt.point(at.x - root.contentX, at.y - root.contentY)
        root.zoom = next
        root.contentX = Math.max(0, Math.min(root.contentWidth - root.width, at.x * ratio - onScreen.x))
        root.contentY = Math.max(0, Math.min(root.contentHeight - root.height, at.y * ratio - onScreen.y))
    }

    contentWidth: Math.max(root.width, root.shownWidth)
    contentHeight: Math.max(root.height, root.shownHeight)
    clip: true
    boundsBehavior: Flickable.StopAtBounds

    Item {
        id: box
        objectName: "zoomBox"
        width: root.turned ? root.shownHeight : root.shownWidth
        height: root.turned ? root.shownWidth : root.shownHeight
        x: (root.contentWidth - width) / 2
        y: (root.contentHeight - height) / 2
        rotation: root.turned ? 90 : 0
    }

    PinchHandler {
        property real startZoom: 1
        target: null
        onActiveChanged: if (active) startZoom = root.zoom
        onActiveScaleChanged: if (active) root.zoomTo(startZoom * activeScale, centroid.position)
    }
    TapHandler {
        onDoubleTapped: eventPoint => root.zoomTo(root.zoom > root.minimumZoom ? root.minimumZoom : root.doubleTapZoom,
                                                  eventPoint.position)
    }
}
