import QtQuick
import QtQuick.Controls
import QtMultimedia
import Quillet.Ui

/** The camera screen: the camera's picture, a shutter and Cancel; why there is no picture when there is none. */
Rectangle {
    id: root

    required property var vc

    color: Theme.darkroom

    VideoOutput {
        id: output
        anchors.fill: parent
        fillMode: VideoOutput.PreserveAspectCrop
        Component.onCompleted: root.vc.setVideoOutput(output)
    }
    Label {
        objectName: "cameraError"
        anchors.centerIn: parent
        width: parent.width - 2 * Theme.margin
        visible: text.length > 0
        text: root.vc.errorString
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        color: Theme.textOnAccent
        font.family: Theme.bodyFont
        font.pixelSize: Theme.fontBody
    }
    DarkroomButton {
        objectName: "cancelButton"
        anchors.left: parent.left
        anchors.verticalCenter: shutter.verticalCenter
        anchors.leftMargin: Theme.margin
        text: qsTr("Cancel")
        onClicked: root.vc.cancel()
    }
    RoundButton {
        id: shutter
        objectName: "shutterButton"
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.margin
        width: Theme.toolBarHeight
        height: Theme.toolBarHeight
        enabled: root.vc.isReadyForCapture
        // Without a working camera there is nothing to shoot.
        visible: root.vc.isReadyForCapture || root.vc.errorString.length === 0
        palette.button: Theme.textOnAccent
        onClicked: root.vc.takePicture()
    }
}
