import QtQuick

/**
 * One of the application's own pictures by name (`image://assets/<name>`), drawn sharp at the item's
 * size. A monochrome icon takes `color` when one is set, so a selected row can show it in the accent;
 * drawn pictures keep their own colours.
 */
Image {
    id: root

    /** The picture's name as the screens and item tables name it: "menu_text", "plus", "retry". */
    property string asset
    /** The colour of a monochrome icon; transparent keeps the icon's own colour. */
    property color color: "transparent"

    source: root.asset.length === 0 ? ""
        : "image://assets/" + root.asset + (root.color.a > 0 ? "?color=" + root.color.toString().slice(1) : "")
    sourceSize: Qt.size(Math.ceil(root.width * Screen.devicePixelRatio), Math.ceil(root.height * Screen.devicePixelRatio))
    fillMode: Image.PreserveAspectFit
    smooth: true
}
