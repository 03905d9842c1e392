pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Window
import Quillet.Browse
import Quillet.Ui

/** "MY ARTS": the add cell, then the user's imported pictures; a tap makes one a sticker below. */
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
        cellHeight: cellWidth
        reuseItems: true
        model: root.vc.items
        delegate: Item {
            id: cell
            required property int index
            required property bool isAdd
            required property string picture
            width: collectionView.cellWidth
            height: collectionView.cellHeight

            Rectangle {
                objectName: "addLogoView"
                anchors.fill: parent
                anchors.margins: Theme.spacing / 2
                radius: 20
                color: Theme.surface
                border.color: Theme.accent
                visible: cell.isAdd
                AssetIcon {
                    anchors.centerIn: parent
                    width: Theme.iconSize * 2
                    height: width
                    asset: "plus"
                    color: Theme.accent
                }
            }
            TemplateCard {
                anchors.fill: parent
                visible: !cell.isAdd
                index: cell.index
                thumbnail: cell.picture
                aspect: 0
                padding: Theme.spacing / 2
                pictureSize: Qt.size(Math.round(cell.width * Screen.devicePixelRatio),
                                     Math.round(cell.height * Screen.devicePixelRatio))
            }
            TapHandler {
                longPressThreshold: 0.5
                onTapped: root.vc.didSelectItem(cell.index)
                onLongPressed: root.vc.longPressed(cell.index)
            }
        }
    }

    Column {
        objectName: "noDataMainView"
        anchors.centerIn: parent
        anchors.verticalCenterOffset: collectionView.cellHeight / 2
        spacing: Theme.spacing
        visible: root.vc.noDataVisible
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Add your own pictures to use them as stickers")
            color: Theme.textMuted
            font.family: Theme.bodyFont
            font.pixelSize: Theme.fontBody
        }
    }

    BusyIndicator {
        anchors.centerIn: parent
        running: root.vc.isImporting
        visible: running
    }

    FileDialog {
        id: gallery
        objectName: "galleryDialog"
        fileMode: FileDialog.OpenFiles
        // The dialog matches names case by case, and cameras name their photographs in capitals.
        nameFilters: [qsTr("Pictures (*.png *.jpg *.jpeg *.webp *.gif *.bmp *.PNG *.JPG *.JPEG *.WEBP *.GIF *.BMP)")]
        onAccepted: root.vc.addArts(gallery.selectedFiles)
    }
    Connections {
        target: root.vc
        function onGalleryRequested() { gallery.open() }
    }
}
