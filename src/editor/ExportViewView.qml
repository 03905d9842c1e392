pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Ui

/** The modal choice of two items over the dimmed editor: a title, two picture tiles, and close. */
Item {
    id: root
    required property var vc

    // One tile: the item's picture over its caption.
    component ItemTile: Rectangle {
        id: tile
        required property string caption
        required property string asset
        required property color tint
        signal clicked()
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        implicitHeight: 150
        radius: Theme.radius
        color: tap.pressed ? Qt.darker(tile.tint, 1.1) : tile.tint
        ColumnLayout {
            anchors.centerIn: parent
            spacing: Theme.spacing
            AssetIcon {
                Layout.alignment: Qt.AlignHCenter
                Layout.preferredWidth: 64
                Layout.preferredHeight: 64
                asset: tile.asset
                color: Theme.accent
            }
            Label {
                Layout.alignment: Qt.AlignHCenter
                text: tile.caption
                font.family: Theme.titleFont
                font.weight: Font.Medium
                font.pixelSize: Theme.fontTitle
                color: Theme.text
            }
        }
        TapHandler {
            id: tap
            onTapped: tile.clicked()
        }
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.scrim
        TapHandler { }
    }

    Rectangle {
        objectName: "exportCard"
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, 360)
        height: card.implicitHeight + 2 * Theme.margin
        radius: Theme.radius
        color: Theme.surface

        // The close badge keeps its own colours.
        AssetIcon {
            objectName: "imgClose"
            anchors.top: parent.top
            anchors.right: parent.right
            anchors.margins: Theme.spacing
            width: 30
            height: 30
            asset: root.vc.closeImg
            TapHandler { onTapped: root.vc.closeClicked() }
        }

        ColumnLayout {
            id: card
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.margins: Theme.margin
            spacing: Theme.margin

            Label {
                objectName: "lblTitle"
                Layout.fillWidth: true
                Layout.topMargin: Theme.spacing * 2
                text: root.vc.titleText
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                font.family: Theme.titleFont
                font.weight: Font.Medium
                font.pixelSize: Theme.fontTitle
                color: Theme.text
            }
            RowLayout {
                Layout.fillWidth: true
                spacing: Theme.margin
                ItemTile {
                    objectName: "btnItem1"
                    caption: root.vc.itemText1
                    asset: root.vc.img1
                    tint: root.vc.itemBgColor1.a > 0 ? root.vc.itemBgColor1 : Theme.accentSoft
                    onClicked: root.vc.btnItem1Clicked()
                }
                ItemTile {
                    objectName: "btnItem2"
                    caption: root.vc.itemText2
                    asset: root.vc.img2
                    tint: root.vc.itemBgColor2.a > 0 ? root.vc.itemBgColor2 : Theme.accentSoft
                    onClicked: root.vc.btnItem2Clicked()
                }
            }
        }
    }
}
