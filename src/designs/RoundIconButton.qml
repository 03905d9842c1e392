import QtQuick
import QtQuick.Controls

/** A round sign on a dark veil, for buttons over a picture: close, full screen, play. */
Rectangle {
    id: root
    property alias text: sign.text
    signal clicked()

    width: 40
    height: 40
    radius: 20
    color: tap.pressed ? "#CC000000" : "#88000000"

    Label {
        id: sign
        anchors.centerIn: parent
        text: "\u2715"
        color: "white"
        font.pixelSize: 18
    }
    TapHandler {
        id: tap
        onTapped: root.clicked()
    }
}
