import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtMultimedia
import Quillet.Designs

/**
 * A finished movie, playing once shown, with play and pause and a position bar; or a GIF running in a
 * zoomable view. The close button leaves either.
 */
Page {
    id: root
    required property var vc
    readonly property bool isMovie: root.vc.videoURL.toString().length > 0

    background: Rectangle { color: "black" }

    // The player and its sound devices exist only for a movie.
    Loader {
        anchors.fill: parent
        active: root.isMovie
        sourceComponent: Item {
            VideoOutput {
                id: videoView
                objectName: "videoView"
                anchors.fill: parent
                fillMode: VideoOutput.PreserveAspectFit
                TapHandler {
                    onTapped: player.playbackState === MediaPlayer.PlayingState ? player.pause() : player.play()
                }
            }
            MediaDevices { id: devices }
            AudioOutput { id: speaker }
            MediaPlayer {
                id: player
                objectName: "player"
                source: root.vc.videoURL
                videoOutput: videoView
                // Without a sound device the movie plays silently instead of not at all.
                audioOutput: devices.audioOutputs.length > 0 ? speaker : null
                Component.onCompleted: play()
            }
            RowLayout {
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                anchors.margins: 16
                RoundIconButton {
                    objectName: "playButton"
                    text: player.playbackState === MediaPlayer.PlayingState ? "\u275A\u275A" : "\u25B6"
                    onClicked: player.playbackState === MediaPlayer.PlayingState ? player.pause() : player.play()
                }
                Slider {
                    Layout.fillWidth: true
                    from: 0
                    to: Math.max(1, player.duration)
                    value: player.position
                    enabled: player.seekable
                    onMoved: player.position = value
                }
            }
        }
    }

    ZoomableView {
        objectName: "imageScrollView"
        anchors.fill: parent
        visible: !root.isMovie
        pictureSize: imgView.sourceSize
        turned: root.vc.deviceOrientation === "Landscape"

        AnimatedImage {
            id: imgView
            objectName: "imgView"
            anchors.fill: parent
            source: root.vc.gifURL
            playing: !root.isMovie
        }
    }

    RoundIconButton {
        objectName: "btnClose"
        anchors.top: parent.top
        anchors.right: parent.right
        anchors.margins: 12
        onClicked: root.vc.btnCloseClicked()
    }
}
