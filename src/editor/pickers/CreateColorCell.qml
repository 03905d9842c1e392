pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls

/** The strip of background colours: "Custom", "Transparent", then the colours; the tapped one is marked. */
GridView {
    id: root

    required property var cell

    objectName: "colorStrip"
    interactive: false
    cellWidth: width / Math.max(1, Math.floor(width / 64))
    cellHeight: cellWidth + 18
    implicitHeight: Math.ceil(count / Math.max(1, Math.floor(width / 64))) * cellHeight
    model: root.cell ? root.cell.rows : []
    delegate: Item {
        id: swatch
        required property int index
        required property var modelData
        width: root.cellWidth
        height: root.cellHeight
        BgIcon {
            anchors.fill: parent
            anchors.margins: 4
            fill: swatch.modelData.color
            source: swatch.modelData.picture ? "image://assets/" + swatch.modelData.picture : ""
            asset: swatch.modelData.icon
            text: swatch.modelData.title
            selected: root.cell && root.cell.selectedIndex === swatch.index
            onClicked: root.cell.select(swatch.index)
        }
    }
}
