pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Ui

/** The action sheet of a saved design, over the list: one row per action, then Cancel. */
Item {
    id: root

    required property var vc
    readonly property bool isSheet: true

    Rectangle {
        anchors.fill: parent
        color: Theme.scrim
        TapHandler {
            onTapped: root.vc.cancelBtnClick()
        }
    }

    component ActionRow: ItemDelegate {
        required property string asset
        Layout.fillWidth: true
        icon.source: "image://assets/" + asset
        font.family: Theme.bodyFont
        font.pixelSize: Theme.fontBody
    }

    Rectangle {
        objectName: "mainView"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: actions.implicitHeight + 2 * Theme.margin
        radius: Theme.radius
        color: Theme.surface

        ColumnLayout {
            id: actions
            anchors.fill: parent
            anchors.margins: Theme.margin
            spacing: 0
            ActionRow {
                objectName: "reEditButton"
                text: qsTr("Edit")
                asset: "menu_text_edit"
                onClicked: root.vc.reEditBtnClick()
            }
            ActionRow {
                objectName: "previewButton"
                text: qsTr("Preview")
                asset: "ic_fullscreen"
                onClicked: root.vc.previewBtnClick()
            }
            ActionRow {
                objectName: "shareButton"
                text: qsTr("Share")
                asset: "ic_share"
                onClicked: root.vc.shareBtnClick()
            }
            ActionRow {
                objectName: "duplicateButton"
                text: qsTr("Duplicate")
                asset: "menu_duplicate"
                onClicked: root.vc.duplicateBtnClick()
            }
            ActionRow {
                objectName: "printButton"
                text: qsTr("Print")
                asset: "ic_print"
                visible: root.vc.printOffered
                onClicked: root.vc.printBtnClick()
            }
            ActionRow {
                objectName: "deleteButton"
                text: qsTr("Delete")
                asset: "ic_delete"
                onClicked: root.vc.deleteBtnClick()
            }
            Button {
                objectName: "cancelButton"
                Layout.fillWidth: true
                Layout.topMargin: Theme.spacing
                text: qsTr("Cancel")
                flat: true
                font.family: Theme.titleFont
                onClicked: root.vc.cancelBtnClick()
            }
        }
    }
}
