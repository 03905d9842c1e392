pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Window
import Quillet.Browse
import Quillet.Ui

/** "MY DESIGNS": the saved designs; a tap makes the design's picture a sticker on the editor below. */
Page {
    id: root

    required property var vc

    background: Rectangle { color: Theme.background }
    header: BackBar { vc: root.vc }

    GridView {
        id: collectionView
        objectName: "collectionView"
        anchors.fill: parent
        anchors.margins: Theme.spacing / 2
        cellWidth: Math.floor(width / 3)
        cellHeight: Math.round(cellWidth * 16 / 9)
        reuseItems: true
        model: root.vc.items
        delegate: SavedDesignCell {
            id: cell
            width: collectionView.cellWidth
            height: collectionView.cellHeight
            padding: Theme.spacing / 2
            moreVisible: false
            pictureSize: Qt.size(Math.round(collectionView.cellWidth * Screen.devicePixelRatio),
                                 Math.round(collectionView.cellHeight * Screen.devicePixelRatio))
            onTapped: root.vc.didSelectItem(cell.index)
        }
    }
}
