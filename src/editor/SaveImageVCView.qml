pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Designs

/** The saved picture: zoomable, with full screen, and the share, print, delete and rate buttons. */
Page {
    id: root
    required property var vc

    // A round coloured button with its caption below.
    component ActionButton: ColumnLayout {
        id: action
        property alias text: caption.text
        property alias glyph: face.text
        property color tint: "#E05863"
        signal clicked()
        Layout.fillWidth: true
        spacing: 4
        Rectangle {
            Layout.alignment: Qt.AlignHCenter
            implicitWidth: 48
            implicitHeight: 48
            radius: 24
            color: tap.pressed ? Qt.darker(action.tint, 1.2) : action.tint
            Label {
                id: face
                anchors.centerIn: parent
                color: "white"
                font.family: "Rubik"
                font.weight: Font.Bold
                font.pixelSize: 18
            }
            TapHandler {
                id: tap
                onTapped: action.clicked()
            }
        }
        Label {
            id: caption
            Layout.alignment: Qt.AlignHCenter
            font.family: "Montserrat"
            font.pixelSize: 11
            color: "#857A7E"
        }
    }

    // A word or sign in the bar, white on the accent colour.
    component BarButton: Label {
        id: barButton
        signal clicked()
        color: "white"
        font.family: "Rubik"
        font.weight: Font.Medium
        font.pixelSize: 16
        padding: 8
        TapHandler { onTapped: barButton.clicked() }
    }

    background: Rectangle { color: "#EFEAEC" }

    header: Rectangle {
        height: 56
        color: "#E05863"
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 12
            anchors.rightMargin: 12
            BarButton {
                objectName: "backButton"
                text: "\u2039"
                font.pixelSize: 30
                onClicked: root.vc.backPressed()
            }
            Label {
                Layout.fillWidth: true
                text: qsTr("Saved")
                color: "white"
                font.family: "Rubik"
                font.weight: Font.Medium
                font.pixelSize: 18
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
            color: "white"
            clip: true

            ZoomableView {
                id: scrollView
                objectName: "scrollView"
                anchors.fill: parent
                anchors.margins: 8
                pictureSize: imageView.sourceSize
                PictureItem {
                    id: imageView
                    objectName: "imageView"
                    anchors.fill: parent
                    image: root.vc.editedImage
                }
            }
            RoundIconButton {
                objectName: "btnFullScreen"
                anchors.top: parent.top
                anchors.right: parent.right
                anchors.margins: 12
                text: "\u2922"
                onClicked: root.vc.btnFullScreenClicked()
            }
        }

        Label {
            objectName: "albumLabel"
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            text: root.vc.albumFile.length > 0 ? qsTr("Saved to the \u201CQuillet\u201D album") : ""
            font.family: "Montserrat"
            font.pixelSize: 13
            color: "#1F1A1C"
        }

        RowLayout {
            Layout.fillWidth: true
            ActionButton { objectName: "btnFb"; glyph: "f"; text: qsTr("Facebook"); tint: "#1877F2"; onClicked: root.vc.fbClicked() }
            ActionButton { objectName: "btnWhatsapp"; glyph: "W"; text: qsTr("WhatsApp"); tint: "#25D366"; onClicked: root.vc.whatsappClicked() }
            ActionButton { objectName: "btnInstagram"; glyph: "I"; text: qsTr("Instagram"); tint: "#C13584"; onClicked: root.vc.instaClicked() }
            ActionButton { objectName: "btnShare"; glyph: "\u21EA"; text: qsTr("Share"); onClicked: root.vc.shareClicked() }
        }
        RowLayout {
            Layout.fillWidth: true
            ActionButton { objectName: "btn_print"; glyph: "P"; text: qsTr("Print"); tint: "#5B4B8A"; onClicked: root.vc.printClicked() }
            ActionButton { objectName: "btnDelete"; glyph: "\u2715"; text: qsTr("Delete"); tint: "#857A7E"; onClicked: root.vc.deleteClicked() }
            ActionButton { objectName: "btnRate"; glyph: "\u2605"; text: qsTr("Rate"); tint: "#F2A93B"; onClicked: root.vc.btnRateClicked() }
        }
    }
}
