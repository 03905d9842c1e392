import QtQuick
import QtQuick.Controls
import QtMultimedia
import Quillet.Ui
import Quillet.Video

/** The background movie of a video design; the canvas laid into this item is drawn over it. */
Item {
    id: root

    required property VideoView videoView
    default property alias canvas: canvasLayer.data

    VideoOutput {
        id: output
        objectName: "videoOutput"
        anchors.fill: parent
        fillMode: root.videoView.videoGravity
        visible: root.videoView.hasVideo
        Component.onCompleted: root.videoView.videoOutput = output
        Component.onDestruction: {
            if (root.videoView && root.videoView.videoOutput === output)
                root.videoView.videoOutput = null
        }
    }
    Item {
        id: canvasLayer
        anchors.fill: parent
    }
    Label {
        objectName: "playbackError"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: Theme.spacing
        visible: text.length > 0
        text: root.videoView.errorString
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        padding: Theme.spacing
        color: Theme.textOnAccent
        font.family: Theme.bodyFont
        font.pixelSize: Theme.fontSmall
        background: Rectangle {
            color: Theme.scrim
            radius: Theme.radius / 2
        }
    }
}
