import QtQuick
import QtQuick.Controls
import Quillet.Ui

/** The results of a search: the search message over the grid of cards. */
Page {
    id: root

    required property var vc

    background: Rectangle {
        color: Theme.background
    }
    header: BackBar {
        vc: root.vc
    }

    Label {
        id: message
        objectName: "searchMessage"
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Theme.spacing
        text: root.vc ? root.vc.searchMessage : ""
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        color: Theme.text
        font.family: Theme.titleFont
        font.pixelSize: Theme.fontBody + 1
    }
    CardGrid {
        anchors.top: message.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        vc: root.vc
    }
}
