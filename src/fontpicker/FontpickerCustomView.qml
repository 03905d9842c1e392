import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs

/** CUSTOM: the add button and the document picker for font files. */
Item {
    id: root

    property var vc

    Button {
        objectName: "btnAddFonts"
        anchors.centerIn: parent
        text: qsTr("Add Fonts")
        onClicked: picker.open()
    }
    FileDialog {
        id: picker
        nameFilters: [qsTr("Fonts (*.ttf *.otf *.ttc *.otc)")]
        onAccepted: root.vc.documentPicked(picker.selectedFile)
    }
}
