import QtQuick
import QtQuick.Controls
import Quillet.Ui

/**
 * One row of a tool bar: its picture above its word, in the accent while it is the selected row. A row
 * without a word is a tile (a pattern) or an icon; a font row shows its name in its own face.
 */
AbstractButton {
    id: root

    /** The row: "image", "text", "selectedImage", "isSelect", and "fontFamily" for fonts. */
    required property var row
    readonly property bool selected: root.row.isSelect === true
    readonly property bool tile: root.row.text === "" && root.row.image.indexOf("pattern") === 0
    readonly property bool hasPicture: root.row.image !== undefined && root.row.image.length > 0

    implicitWidth: root.tile ? Theme.touchTarget + Theme.spacing
        : Math.max(64, words.implicitWidth + Theme.spacing * 2)
    implicitHeight: Math.max(Theme.touchTarget, column.implicitHeight + Theme.spacing)

    background: Rectangle {
        color: root.pressed ? Theme.accentSoft : "transparent"
        radius: 6
    }

    contentItem: Item {
        Column {
            id: column
            anchors.centerIn: parent
            spacing: 2
            AssetIcon {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: root.hasPicture
                width: root.tile ? Theme.touchTarget : Theme.iconSize
                height: width
                asset: root.selected && root.row.selectedImage ? root.row.selectedImage : root.row.image
                // The selected look of an icon is the accent; a tile keeps its colours and gets a frame.
                color: root.selected && !root.tile ? Theme.accent : "transparent"
                Rectangle {
                    anchors.fill: parent
                    visible: root.tile
                    color: "transparent"
                    border.width: root.selected ? 2 : 1
                    border.color: root.selected ? Theme.accent : Theme.separator
                }
            }
            Label {
                id: words
                anchors.horizontalCenter: parent.horizontalCenter
                visible: text.length > 0
                text: root.row.text
                color: root.selected ? Theme.accent : Theme.text
                font.family: root.row.fontFamily ? root.row.fontFamily : Theme.bodyFont
                font.pixelSize: root.row.fontFamily ? Theme.fontBody + 2 : Theme.fontSmall
            }
        }
    }
}
