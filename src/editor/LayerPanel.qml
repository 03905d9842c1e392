import QtQuick
import QtQuick.Controls

/**
 * The layer panel over the canvas: the stickers, topmost first. Press and hold a row, then drag it
 * over the others to change the stacking; each row passed swaps two stickers in the canvas.
 */
Rectangle {
    id: panel
    required property var vc
    readonly property real rowHeight: 76

    color: Qt.rgba(0, 0, 0, 0.5)
    visible: vc.layersShown

    // While the panel shows, the editor below gets no touches.
    MouseArea { anchors.fill: parent }

    ListView {
        id: rows
        objectName: "layerTableView"
        anchors.fill: parent
        anchors.topMargin: 12
        anchors.bottomMargin: 56
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
                anchors.margins: 6
                radius: 6
                color: rows.dragRow === row.index ? "#E05863" : Qt.rgba(1, 1, 1, 0.15)
                Image {
                    anchors.fill: parent
                    anchors.margins: 4
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

    ToolButton {
        objectName: "btnClose"
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 8
        text: "\u2715"
        font.pixelSize: 22
        palette.buttonText: "white"
        onClicked: panel.vc.toggleLayers()
    }
}
