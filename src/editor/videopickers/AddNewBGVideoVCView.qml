pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import Quillet.Editor.Pickers
import Quillet.Ui

/** "Pick your own" of the background videos: the gallery of movies, and a spinner while one is prepared. */
Item {
    id: root

    required property var vc

    Row {
        x: Theme.margin
        y: Theme.margin
        spacing: Theme.margin
        Repeater {
            model: root.vc.rows
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
            running: root.vc.isPreparing
            visible: running
        }
    }
    FileDialog {
        id: gallery
        // The dialog matches names case by case, and cameras name their movies in capitals.
        nameFilters: [qsTr("Movies (*.mp4 *.mov *.m4v *.MP4 *.MOV *.M4V)")]
        onAccepted: root.vc.pickedFile(gallery.selectedFile)
    }
    Connections {
        target: root.vc
        function onGalleryRequested() { gallery.open() }
    }
}
