pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Quillet.Ui

/** A tag search: the search bar over the popular tags it filters. */
Page {
    id: root

    required property var vc

    background: Rectangle {
        color: Theme.background
    }
    header: BackBar {
        vc: root.vc
    }

    TextField {
        id: searchBar
        objectName: "searchBar"
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Theme.margin
        leftPadding: Theme.iconSize + 2 * Theme.spacing
        placeholderText: qsTr("Search")
        text: root.vc ? root.vc.searchBarText : ""
        font.family: Theme.bodyFont
        inputMethodHints: Qt.ImhNoPredictiveText
        onTextEdited: root.vc.searchBarText = text
        onAccepted: root.vc.confirmSearch()

        AssetIcon {
            anchors.left: parent.left
            anchors.leftMargin: Theme.spacing
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.iconSize
            height: Theme.iconSize
            asset: "ic_search"
            color: Theme.textMuted
        }
    }
    Label {
        id: tableTitle
        anchors.top: searchBar.bottom
        anchors.left: parent.left
        anchors.margins: Theme.margin
        text: root.vc ? root.vc.tableTitle : ""
        color: Theme.text
        font.family: Theme.titleFont
        font.weight: Font.Medium
        font.pixelSize: Theme.fontTitle
    }
    ListView {
        objectName: "tagList"
        anchors.top: tableTitle.bottom
        anchors.topMargin: Theme.spacing
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        clip: true
        model: root.vc ? root.vc.rows : []
        delegate: ItemDelegate {
            id: row
            required property int index
            required property string modelData
            width: ListView.view.width
            leftPadding: Theme.margin
            enabled: !(root.vc ? root.vc.placeholderShown : true)
            onClicked: root.vc.chooseRow(row.index)
            // A label of its own: a button's text would take the "&" of "Offers & Sales" for a shortcut.
            contentItem: Label {
                text: row.modelData
                textFormat: Text.PlainText
                color: row.enabled ? Theme.text : Theme.textMuted
                font.family: Theme.bodyFont
                font.pixelSize: Theme.fontBody
                verticalAlignment: Text.AlignVCenter
            }
        }
    }
}
