import QtQuick
import QtQuick.Controls

/** The results of a search: the search message over the grid of cards. */
Page {
    id: root

    required property var vc

    header: BackBar {
        vc: root.vc
    }

    Label {
        id: message
        objectName: "searchMessage"
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 12
        text: root.vc.searchMessage
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        font.family: "Rubik"
        font.pixelSize: 15
    }
    CardGrid {
        anchors.top: message.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        vc: root.vc
    }
}
