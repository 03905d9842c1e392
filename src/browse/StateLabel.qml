import QtQuick
import QtQuick.Controls

/** The loading, failed and empty states in words; a tap retries from the failed state. */
Item {
    id: root

    property string text: ""
    property bool retryVisible: false
    signal retryClicked

    visible: text.length > 0

    Column {
        anchors.centerIn: parent
        width: parent.width - 48
        spacing: 12

        BusyIndicator {
            anchors.horizontalCenter: parent.horizontalCenter
            running: root.visible && !root.retryVisible && root.text === "Loading..."
            visible: running
        }
        Label {
            objectName: "stateLabel"
            width: parent.width
            text: root.text
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            font.family: "Rubik"
            font.pixelSize: 15
            color: palette.placeholderText
        }
    }
    TapHandler {
        enabled: root.retryVisible
        onTapped: root.retryClicked()
    }
}
