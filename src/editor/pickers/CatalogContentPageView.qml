pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Quillet.Editor.Pickers
import Quillet.Ui

/** One catalog's pictures in a grid, with its loading, failed and empty states. */
Item {
    id: root

    required property var vc

    GridView {
        id: grid
        objectName: "grid"
        anchors.fill: parent
        anchors.margins: Theme.spacing
        clip: true
        cellWidth: width / 3
        cellHeight: cellWidth * root.vc.cellAspect
        model: root.vc.thumbnails
        delegate: Item {
            id: cell
            required property int index
            required property string modelData
            width: grid.cellWidth
            height: grid.cellHeight
            BgIcon {
                anchors.fill: parent
                anchors.margins: 4
                source: cell.modelData
                onClicked: root.vc.didSelectItem(cell.index)
            }
        }
    }
    BusyIndicator {
        objectName: "loadingIndicator"
        anchors.centerIn: parent
        running: root.vc.loadingState === CatalogScreen.Loading || root.vc.isPreparing
    }
    Column {
        objectName: "failedView"
        anchors.centerIn: parent
        spacing: Theme.margin
        visible: root.vc.loadingState === CatalogScreen.Failed
        AssetIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 48
            height: 48
            asset: "retry"
            color: Theme.textMuted
        }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Something went wrong. Please try again.")
            color: Theme.textMuted
            font.family: Theme.bodyFont
            font.pixelSize: Theme.fontBody
        }
        Button {
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Retry")
            onClicked: root.vc.retry()
        }
    }
    Label {
        objectName: "emptyView"
        anchors.centerIn: parent
        visible: root.vc.isEmpty
        text: qsTr("Nothing here yet.")
        color: Theme.textMuted
        font.family: Theme.bodyFont
        font.pixelSize: Theme.fontBody
    }
}
