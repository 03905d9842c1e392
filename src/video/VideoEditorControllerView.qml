import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtMultimedia
import Quillet.Ui
import Quillet.Video

/** "Trim Video": the movie, its filmstrip with the two handles and the play head, Cancel and Save. */
Page {
    id: root

    required property var vc

    title: root.vc.title
    background: Rectangle { color: Theme.text }

    header: ToolBar {
        RowLayout {
            anchors.fill: parent
            ToolButton {
                objectName: "cancelButton"
                text: qsTr("Cancel")
                onClicked: root.vc.cancel()
            }
            Label {
                text: root.vc.title
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                color: Theme.textOnAccent
                font.family: Theme.titleFont
                font.weight: Font.Medium
                font.pixelSize: Theme.fontTitle
            }
            ToolButton {
                objectName: "saveButton"
                text: qsTr("Save")
                enabled: root.vc.canSave
                onClicked: root.vc.save()
            }
        }
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.margin
        spacing: Theme.margin

        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            VideoOutput {
                id: output
                objectName: "videoOutput"
                anchors.fill: parent
                fillMode: VideoOutput.PreserveAspectFit
                Component.onCompleted: root.vc.videoOutput = output
                Component.onDestruction: {
                    if (root.vc && root.vc.videoOutput === output)
                        root.vc.videoOutput = null
                }
                TapHandler { onTapped: root.vc.togglePlay() }
            }
            IconButton {
                objectName: "playButton"
                anchors.centerIn: parent
                visible: !root.vc.playing && root.vc.duration > 0
                asset: "play"
                color: Theme.textOnAccent
                icon.width: Theme.iconSize * 2
                icon.height: Theme.iconSize * 2
                onClicked: root.vc.togglePlay()
            }
        }

        Label {
            objectName: "lengthLabel"
            Layout.alignment: Qt.AlignHCenter
            text: root.vc.lengthText
            color: Theme.textOnAccent
            font.family: Theme.bodyFont
            font.pixelSize: Theme.fontBody
        }

        // The filmstrip, dimmed outside the part kept, between the two handles.
        Item {
            id: bar
            objectName: "trimBar"
            Layout.fillWidth: true
            Layout.preferredHeight: Theme.barHeight

            readonly property real handleWidth: Theme.margin
            readonly property real stripWidth: width - 2 * handleWidth
            function xOf(seconds) {
                return root.vc.duration > 0 ? handleWidth + seconds / root.vc.duration * stripWidth : handleWidth
            }
            function secondsPer(pixels) {
                return stripWidth > 0 ? pixels / stripWidth * root.vc.duration : 0
            }

            FilmstripItem {
                id: strip
                objectName: "filmstrip"
                x: bar.handleWidth
                width: bar.stripWidth
                height: parent.height
                filmstrip: root.vc.filmstrip
                emptyColor: Theme.textMuted
                TapHandler { onTapped: (point) => root.vc.seek(bar.secondsPer(point.position.x)) }
            }
            Rectangle {
                x: strip.x
                width: bar.xOf(root.vc.startTime) - strip.x
                height: parent.height
                color: Theme.scrim
            }
            Rectangle {
                x: bar.xOf(root.vc.endTime)
                width: strip.x + strip.width - x
                height: parent.height
                color: Theme.scrim
            }
            Rectangle {
                objectName: "selection"
                x: bar.xOf(root.vc.startTime)
                width: bar.xOf(root.vc.endTime) - x
                height: parent.height
                color: "transparent"
                border.color: Theme.accent
                border.width: 3
            }
            Rectangle {
                objectName: "playhead"
                x: bar.xOf(root.vc.playheadTime) - width / 2
                y: -Theme.spacing / 2
                width: 3
                height: parent.height + Theme.spacing
                radius: 1
                color: Theme.surface
            }
            TrimHandle {
                objectName: "startHandle"
                x: bar.xOf(root.vc.startTime) - width
                width: bar.handleWidth
                height: bar.height
                onDragged: (from, pixels) => root.vc.moveStartHandle(from + bar.secondsPer(pixels))
                time: root.vc.startTime
            }
            TrimHandle {
                objectName: "endHandle"
                x: bar.xOf(root.vc.endTime)
                width: bar.handleWidth
                height: bar.height
                onDragged: (from, pixels) => root.vc.moveEndHandle(from + bar.secondsPer(pixels))
                time: root.vc.endTime
            }
        }

        Label {
            objectName: "errorLabel"
            Layout.fillWidth: true
            visible: text.length > 0
            text: root.vc.errorString
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            color: Theme.accent
            font.family: Theme.bodyFont
            font.pixelSize: Theme.fontSmall
        }
    }

    // While the cut is made: its progress over everything; Cancel stays available.
    Rectangle {
        objectName: "savingOverlay"
        anchors.fill: parent
        visible: root.vc.saving
        color: Theme.scrim
        ColumnLayout {
            anchors.centerIn: parent
            spacing: Theme.spacing
            Label {
                Layout.alignment: Qt.AlignHCenter
                text: qsTr("Trimming video...")
                color: Theme.textOnAccent
                font.family: Theme.bodyFont
                font.pixelSize: Theme.fontBody
            }
            ProgressBar {
                Layout.preferredWidth: root.width / 2
                value: root.vc.progress
            }
        }
        TapHandler {}
    }

    /** A handle beside the part kept; reports drags as the time it started from and the pixels moved. */
    component TrimHandle: Rectangle {
        id: handle
        property real time
        signal dragged(real from, real pixels)
        radius: Theme.spacing / 2
        color: Theme.accent
        Rectangle {
            anchors.centerIn: parent
            width: 2
            height: parent.height / 3
            color: Theme.textOnAccent
        }
        DragHandler {
            id: drag
            target: null
            property real from
            onActiveChanged: if (active) from = handle.time
            onTranslationChanged: if (active) handle.dragged(drag.from, drag.translation.x)
        }
    }
}
