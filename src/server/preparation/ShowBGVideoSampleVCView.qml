import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtMultimedia

/** A background video, fitted and looping once cached, with Edit. */
Page {
    id: root

    required property var vc

    header: ToolBar {
        RowLayout {
            anchors.fill: parent
            ToolButton {
                text: qsTr("Cancel")
                onClicked: root.vc.cancelClicked()
            }
            Item { Layout.fillWidth: true }
            ToolButton {
                objectName: "editBtn"
                text: qsTr("Edit")
                enabled: root.vc.editEnabled
                onClicked: root.vc.editClicked()
            }
        }
    }

    VideoOutput {
        id: output
        anchors.fill: parent
        fillMode: VideoOutput.PreserveAspectFit
    }
    MediaPlayer {
        source: root.vc.videoFile
        videoOutput: output
        loops: MediaPlayer.Infinite
        onSourceChanged: if (source.toString().length > 0) play()
    }
    BusyIndicator {
        anchors.centerIn: parent
        running: root.vc.spinnerRunning
    }
    Button {
        anchors.centerIn: parent
        visible: root.vc.retryVisible
        text: qsTr("Retry")
        onClicked: root.vc.reTryClicked()
    }
}
