pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Quillet.Editor.Pickers

/** One catalog's pictures in a grid, with its loading, failed and empty states. */
Item {
    id: root

    required property var vc

    GridView {
        id: grid
        objectName: "grid"
        anchors.fill: parent
        anchors.margins: 8
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
        spacing: 12
        visible: root.vc.loadingState === CatalogScreen.Failed
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Something went wrong. Please try again.")
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
    }
}
