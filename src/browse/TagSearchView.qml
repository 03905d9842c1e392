pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls

/** A tag search: the search bar over the popular tags it filters. */
Page {
    id: root

    required property var vc

    header: BackBar {
        vc: root.vc
    }

    TextField {
        id: searchBar
        objectName: "searchBar"
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 12
        placeholderText: qsTr("Search")
        text: root.vc.searchBarText
        inputMethodHints: Qt.ImhNoPredictiveText
        onTextEdited: root.vc.searchBarText = text
        onAccepted: root.vc.confirmSearch()
    }
    Label {
        id: tableTitle
        anchors.top: searchBar.bottom
        anchors.left: parent.left
        anchors.margins: 16
        text: root.vc.tableTitle
        font.family: "Rubik"
        font.weight: Font.Medium
        font.pixelSize: 16
    }
    ListView {
        objectName: "tagList"
        anchors.top: tableTitle.bottom
        anchors.topMargin: 8
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        clip: true
        model: root.vc.rows
        delegate: ItemDelegate {
            required property int index
            required property string modelData
            width: ListView.view.width
            text: modelData
            enabled: !root.vc.placeholderShown
            onClicked: root.vc.chooseRow(index)
        }
    }
}
