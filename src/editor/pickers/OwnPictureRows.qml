pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import Quillet.Ui

/** The rows of a "Pick your own" page, the gallery they open, and a spinner while a picture is read. */
Row {
    id: root

    required property var vc

    spacing: Theme.margin
    Repeater {
        model: root.vc ? root.vc.rows : []
        CreateBgCell {
            required property int index
            required property var modelData
            objectName: "ownRow" + index
            title: modelData.title
            image: modelData.image
            onClicked: root.vc.selectRow(index)
        }
    }
    BusyIndicator {
        running: root.vc ? root.vc.isPreparing : false
        visible: running
    }
    FileDialog {
        id: gallery
        // The dialog matches names case by case, and cameras name their photographs in capitals.
        nameFilters: [qsTr("Pictures (*.png *.jpg *.jpeg *.webp *.gif *.bmp *.PNG *.JPG *.JPEG *.WEBP *.GIF *.BMP)")]
        onAccepted: root.vc.pickedFile(gallery.selectedFile)
    }
    Connections {
        target: root.vc
        function onGalleryRequested() { gallery.open() }
    }
}
