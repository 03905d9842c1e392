import QtQuick
import QtQuick.Controls

/** A bar button that shows one of the application's icons by name, dimmed while disabled. */
ToolButton {
    id: root

    /** The icon's name as the screens use it: "ic_back", "undo", "ic_layer". */
    property string asset
    /** The colour of the icon; the bar's text colour. */
    property color color: Theme.text

    icon.source: root.asset.length > 0 ? "image://assets/" + root.asset : ""
    icon.width: Theme.iconSize
    icon.height: Theme.iconSize
    icon.color: root.color
    display: AbstractButton.IconOnly
    opacity: root.enabled ? 1 : 0.4
}
