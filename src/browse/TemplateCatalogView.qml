import QtQuick
import Quillet.Ui

/** A catalog screen: the catalog strip over the grid of the selected catalog. */
Item {
    id: root

    required property var vc

    CatalogStrip {
        id: strip
        objectName: "catalogStrip"
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        height: Theme.barHeight
        vc: root.vc
    }
    ScreenLoader {
        objectName: "gridLoader"
        anchors.top: strip.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        screen: root.vc ? root.vc.grid : null
    }
    StateLabel {
        anchors.fill: parent
        text: root.vc ? root.vc.stateText : ""
        retryVisible: root.vc ? root.vc.retryVisible : false
        onRetryClicked: root.vc.retry()
    }
}
