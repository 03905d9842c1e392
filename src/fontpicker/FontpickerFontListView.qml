pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls

/** FREE or PAID: the catalogs with their thumbnails; a tap fetches one. */
Item {
    id: root

    property var vc

    GridView {
        objectName: "catalogGrid"
        anchors.fill: parent
        clip: true
        cellWidth: width / 2
        cellHeight: cellWidth / 2
        model: root.vc ? root.vc.itemsArray : []
        delegate: ItemDelegate {
            id: cell
            required property var modelData
            required property int index
            width: GridView.view.cellWidth
            height: GridView.view.cellHeight
            onClicked: root.vc.didSelectItem(cell.index)
            contentItem: Image {
                source: cell.modelData.thumbnail
                asynchronous: true
                fillMode: Image.PreserveAspectFit
                opacity: cell.modelData.downloaded ? 0.5 : 1
            }
        }
    }
    BusyIndicator {
        anchors.centerIn: parent
        running: root.vc ? root.vc.loading : false
    }
    Label {
        anchors.centerIn: parent
        visible: root.vc ? !root.vc.loading && root.vc.message.length > 0 : false
        text: root.vc ? root.vc.message : ""
    }
}
