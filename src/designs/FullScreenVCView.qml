import QtQuick
import QtQuick.Controls
import Quillet.Designs

/** One picture over the whole screen, zoomable, with a close button. */
Page {
    id: root
    required property var vc

    background: Rectangle { color: "black" }

    ZoomableView {
        objectName: "imageScrollView"
        anchors.fill: parent
        pictureSize: imgView.sourceSize
        turned: root.vc.deviceOrientation === "Landscape"

        PictureItem {
            id: imgView
            objectName: "imgView"
            anchors.fill: parent
            image: root.vc.imageToDisplay
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
