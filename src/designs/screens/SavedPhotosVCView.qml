pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Window
import Quillet.Ui

/** "My Story": the saved designs after the create-own cell, or the empty state. SavedPhotosVC decides. */
Item {
    id: root

    required property var vc
    readonly property bool wide: width >= 600
    readonly property real gap: 10

    GridView {
        id: collectionView
        objectName: "collectionView"
        anchors.fill: parent
        visible: !root.vc.noCardVisible
        leftMargin: root.gap / 2
        rightMargin: root.gap / 2
        topMargin: root.gap / 2
        bottomMargin: root.gap / 2
        cellWidth: Math.floor((width - leftMargin - rightMargin) / (root.wide ? 4 : 2))
        cellHeight: Math.round(cellWidth * 16 / 9)
        cacheBuffer: cellHeight * 2
        reuseItems: true
        model: root.vc.items

        delegate: SavedDesignCell {
            id: cell
            width: collectionView.cellWidth
            height: collectionView.cellHeight
            padding: root.gap / 2
            pictureSize: Qt.size(Math.round(collectionView.cellWidth * Screen.devicePixelRatio),
                                 Math.round(collectionView.cellHeight * Screen.devicePixelRatio))
            onTapped: root.vc.didSelectItem(cell.index)
            onLongPressed: root.vc.longPressed(cell.index)
            onMoreClicked: root.vc.moreClicked(cell.index)
        }

        // A long press where no cell is.
        TapHandler {
            id: outside
            onLongPressed: {
                const at = collectionView.contentItem.mapFromItem(outside.parent, outside.point.position)
                if (collectionView.indexAt(at.x, at.y) < 0)
                    root.vc.longPressed(-1)
            }
        }
    }

    Column {
        objectName: "noCardView"
        anchors.centerIn: parent
        width: parent.width - 4 * Theme.margin
        spacing: Theme.margin
        visible: root.vc.noCardVisible
        AssetIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 96
            height: 96
            asset: "img_placeholder"
            color: Theme.textMuted
        }
        Label {
            width: parent.width
            text: qsTr("Your designs will live here")
            font.family: Theme.titleFont
            font.weight: Font.Medium
            font.pixelSize: Theme.fontTitle
            color: Theme.text
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
        }
        Button {
            objectName: "noCardBtn"
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Create your own")
            highlighted: true
            font.family: Theme.titleFont
            onClicked: root.vc.noCardBtnClicked()
        }
    }

    // A swipe towards the right shows the tab before this one.
    DragHandler {
        target: null
        yAxis.enabled: false
        onActiveChanged: {
            if (!active && translation.x > root.width / 4)
                root.vc.swipedRight()
        }
    }
}
