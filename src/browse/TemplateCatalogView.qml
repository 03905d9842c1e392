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
        screen: root.vc.grid
    }
    StateLabel {
        anchors.fill: parent
        text: root.vc.stateText
        retryVisible: root.vc.retryVisible
        onRetryClicked: root.vc.retry()
    }
}
