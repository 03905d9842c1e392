import QtQuick
import Quillet.Designs

/** The saved picture: zoomable, with full screen, and the share, print, delete and rate buttons. */
SaveResultPage {
    id: root
    heading: qsTr("Saved")
    note: root.vc.albumFile.length > 0 ? qsTr("Saved to the \u201CQuillet\u201D album") : ""
    printable: true
    mediaData: [
        ZoomableView {
            id: scrollView
            objectName: "scrollView"
            anchors.fill: parent
            pictureSize: imageView.sourceSize
            PictureItem {
                id: imageView
                objectName: "imageView"
                anchors.fill: parent
                image: root.vc.editedImage
            }
        }
    ]
}
