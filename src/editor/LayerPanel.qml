import QtQuick
import QtQuick.Controls
import Quillet.Ui

/**
 * The layer panel over the canvas: the stickers, topmost first. Press and hold a row, then drag it
 * over the others to change the stacking; each row passed swaps two stickers in the canvas.
 */
Rectangle {
    id: panel
    required property var vc
    readonly property real rowHeight: 76

    color: Theme.scrim
    visible: vc.layersShown

    // While the panel shows, the editor below gets no touches.
    MouseArea { anchors.fill: parent }

    ListView {
        id: rows
        objectName: "layerTableView"
        anchors.fill: parent
        anchors.topMargin: Theme.spacing * 1.5
        anchors.bottomMargin: Theme.barHeight
        clip: true
        model: panel.vc.layerModel
        interactive: dragRow < 0
        property int dragRow: -1

        delegate: Item {
            id: row
            required property int index
            required property string thumbnail
            width: rows.width
            height: panel.rowHeight

            Rectangle {
                id: containerView
                anchors.fill: parent
                anchors.margins: Theme.spacing * 0.75
                radius: Theme.spacing * 0.75
                color: rows.dragRow === row.index ? Theme.accent : Theme.rowOnScrim
                Image {
                    anchors.fill: parent
                    anchors.margins: Theme.spacing / 2
                    fillMode: Image.PreserveAspectFit
                    source: row.thumbnail
                    asynchronous: false
                }
            }

            MouseArea {
                anchors.fill: parent
                pressAndHoldInterval: 400
                onPressAndHold: rows.dragRow = row.index
                onReleased: rows.dragRow = -1
                onCanceled: rows.dragRow = -1
                onPositionChanged: mouse => {
                    if (rows.dragRow < 0)
                        return
                    const p = mapToItem(rows.contentItem, mouse.x, mouse.y)
                    const target = rows.indexAt(p.x, p.y)
                    if (target >= 0 && target !== rows.dragRow) {
                        const from = rows.dragRow
                        rows.dragRow = target
                        panel.vc.positionChanged(from, target)
                    }
                }
            }
        }
    }

    IconButton {
        objectName: "btnClose"
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.spacing
        asset: "ic_cancel_white"
        color: Theme.textOnAccent
        onClicked: panel.vc.toggleLayers()
    }
}
