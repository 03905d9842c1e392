import QtQuick
import QtQuick.Controls
import Quillet.Ui

/** The loading, failed and empty states in words; a tap retries from the failed state. */
Item {
    id: root

    property string text: ""
    property bool retryVisible: false
    signal retryClicked

    visible: text.length > 0

    Column {
        anchors.centerIn: parent
        width: parent.width - 4 * Theme.margin
        spacing: Theme.spacing

        BusyIndicator {
            anchors.horizontalCenter: parent.horizontalCenter
            running: root.visible && !root.retryVisible && root.text === "Loading..."
            visible: running
        }
        AssetIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 2 * Theme.iconSize
            height: width
            asset: "retry"
            color: Theme.textMuted
            visible: root.retryVisible
        }
        Label {
            objectName: "stateLabel"
            width: parent.width
            text: root.text
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            font.family: Theme.titleFont
            font.pixelSize: Theme.fontBody + 1
            color: Theme.textMuted
        }
    }
    TapHandler {
        enabled: root.retryVisible
        onTapped: root.retryClicked()
    }
}
