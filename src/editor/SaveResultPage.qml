pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Designs
import Quillet.Ui

/**
 * What the result screens of a save share: the bar with back, title and home, a media area with the
 * full screen button, a line under it, and the share, print, delete and rate buttons.
 */
Page {
    id: root
    required property var vc
    property string heading
    property string note
    property bool printable: false
    /** The result itself, laid into the media area. */
    property alias mediaData: mediaArea.data

    // A round coloured button with its caption below.
    component ActionButton: ColumnLayout {
        id: action
        property alias text: caption.text
        property alias asset: face.asset
        property color tint: Theme.accent
        signal clicked()
        Layout.fillWidth: true
        spacing: 4
        Rectangle {
            Layout.alignment: Qt.AlignHCenter
            implicitWidth: 48
            implicitHeight: 48
            radius: 24
            color: tap.pressed ? Qt.darker(action.tint, 1.2) : action.tint
            AssetIcon {
                id: face
                anchors.centerIn: parent
                width: 24
                height: 24
                color: Theme.textOnAccent
            }
            TapHandler {
                id: tap
                onTapped: action.clicked()
            }
        }
        Label {
            id: caption
            Layout.alignment: Qt.AlignHCenter
            font.family: Theme.bodyFont
            font.pixelSize: Theme.fontSmall - 1
            color: Theme.textMuted
        }
    }

    // A word or sign in the bar, white on the accent colour.
    component BarButton: Label {
        id: barButton
        signal clicked()
        color: Theme.textOnAccent
        font.family: Theme.titleFont
        font.weight: Font.Medium
        font.pixelSize: Theme.fontBody + 2
        padding: 8
        TapHandler { onTapped: barButton.clicked() }
    }

    background: Rectangle { color: Theme.workspace }

    header: Rectangle {
        height: Theme.barHeight
        color: Theme.accent
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 12
            anchors.rightMargin: 12
            IconButton {
                objectName: "backButton"
                asset: "ic_back"
                color: Theme.textOnAccent
                onClicked: root.vc.backPressed()
            }
            Label {
                Layout.fillWidth: true
                text: root.heading
                color: Theme.textOnAccent
                font.family: Theme.titleFont
                font.weight: Font.Medium
                font.pixelSize: Theme.fontTitle
                horizontalAlignment: Text.AlignHCenter
            }
            BarButton {
                objectName: "homeButton"
                text: qsTr("Home")
                onClicked: root.vc.homeClicked()
            }
        }
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 12

        Rectangle {
            Layout.fillWidth: true
            Layout.fillHeight: true
            radius: 12
            color: Theme.surface
            clip: true

            Item {
                id: mediaArea
                objectName: "mediaView"
                anchors.fill: parent
                anchors.margins: 8
            }
            RoundIconButton {
                objectName: "btnFullScreen"
                anchors.top: parent.top
                anchors.right: parent.right
                anchors.margins: 12
                text: ""
                onClicked: root.vc.btnFullScreenClicked()
                AssetIcon {
                    anchors.centerIn: parent
                    width: 20
                    height: 20
                    asset: "ic_fullscreen"
                    color: "white"
                }
            }
        }

        Label {
            objectName: "albumLabel"
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            text: root.note
            font.family: Theme.bodyFont
            font.pixelSize: Theme.fontBody - 1
            color: Theme.text
        }

        RowLayout {
            Layout.fillWidth: true
            ActionButton {
                objectName: "btnFb"
                asset: "ic_facebook"
                text: qsTr("Facebook")
                tint: "#1877F2"
                onClicked: root.vc.fbClicked()
            }
            ActionButton {
                objectName: "btnWhatsapp"
                asset: "ic_whatsapp"
                text: qsTr("WhatsApp")
                tint: "#25D366"
                onClicked: root.vc.whatsappClicked()
            }
            ActionButton {
                objectName: "btnInstagram"
                asset: "ic_instagram"
                text: qsTr("Instagram")
                tint: "#C13584"
                onClicked: root.vc.instaClicked()
            }
            ActionButton {
                objectName: "btnShare"
                asset: "ic_share"
                text: qsTr("Share")
                onClicked: root.vc.shareClicked()
            }
        }
        RowLayout {
            Layout.fillWidth: true
            ActionButton {
                objectName: "btn_print"
                visible: root.printable
                asset: "ic_print"
                text: qsTr("Print")
                tint: "#5B4B8A"
                onClicked: root.vc.printClicked()
            }
            ActionButton {
                objectName: "btnDelete"
                asset: "ic_delete"
                text: qsTr("Delete")
                tint: Theme.textMuted
                onClicked: root.vc.deleteClicked()
            }
            ActionButton {
                objectName: "btnRate"
                asset: "sidemenu_rate"
                text: qsTr("Rate")
                tint: "#F2A93B"
                onClicked: root.vc.btnRateClicked()
            }
        }
    }
}
