import QtQuick
import QtMultimedia
import Quillet.Designs
import Quillet.Ui

/**
 * The exported movie or GIF, titled "Success": its preview with the play button, the export's progress
 * over it while it runs, full screen, and the share, delete and rate buttons.
 */
SaveResultPage {
    id: root
    readonly property bool isMovie: root.vc.videoURL.toString().length > 0
    heading: root.vc.title
    note: root.vc.albumFile.length > 0 ? qsTr("Saved to the \u201CQuillet\u201D album") : ""
    mediaData: [
        PictureItem {
            id: imageView
            objectName: "imageView"
            anchors.fill: parent
            visible: !root.vc.playing
            image: root.vc.picture
        },
        // The player and its sound devices exist only while the movie plays in place.
        Loader {
            anchors.fill: parent
            active: root.vc.playing && root.isMovie
            sourceComponent: Item {
                VideoOutput {
                    id: videoView
                    anchors.fill: parent
                    fillMode: VideoOutput.PreserveAspectFit
                }
                MediaDevices { id: devices }
                AudioOutput { id: speaker }
                MediaPlayer {
                    source: root.vc.videoURL
                    videoOutput: videoView
                    // Without a sound device the movie plays silently instead of not at all.
                    audioOutput: devices.audioOutputs.length > 0 ? speaker : null
                    loops: MediaPlayer.Infinite
                    Component.onCompleted: play()
                }
            }
        },
        AnimatedImage {
            objectName: "gifView"
            anchors.fill: parent
            visible: root.vc.playing && !root.isMovie
            fillMode: Image.PreserveAspectFit
            source: visible ? root.vc.gifURL : ""
            playing: visible
        },
        RoundIconButton {
            objectName: "playButton"
            anchors.centerIn: parent
            visible: root.vc.playButtonVisible && !root.vc.playing
            text: ""
            onClicked: root.vc.playClicked()
            AssetIcon {
                anchors.centerIn: parent
                width: 24
                height: 24
                asset: "play"
                color: "white"
            }
        },
        PanelCard {
            objectName: "progressPanel"
            anchors.centerIn: parent
            width: Math.min(parent.width - 2 * Theme.margin, implicitWidth)
            visible: root.vc.progressPanel !== null
            panel: root.vc.progressPanel
            accentOpacity: 0.5
        }
    ]
}
