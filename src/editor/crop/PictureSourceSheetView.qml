pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts
import Quillet.Ui

/** The picture sheet: where the picture comes from, the gallery or the camera, and Cancel. */
Rectangle {
    id: root

    required property var vc
    /** Comes over the screen that opened it, which stays in sight under the scrim. */
    readonly property bool isSheet: true

    color: Theme.scrim

    // The screen below is in sight, not in reach.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        onWheel: (wheel) => wheel.accepted = true
    }

    Rectangle {
        id: panel
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: column.implicitHeight + 2 * Theme.margin
        radius: Theme.radius
        color: Theme.surface

        ColumnLayout {
            id: column
            x: Theme.margin
            y: Theme.margin
            width: panel.width - 2 * Theme.margin
            spacing: Theme.spacing

            Label {
                objectName: "sheetTitle"
                Layout.fillWidth: true
                text: root.vc.title
                horizontalAlignment: Text.AlignHCenter
                color: Theme.textMuted
                font.family: Theme.titleFont
                font.weight: Font.Medium
                font.pixelSize: Theme.fontBody
            }
            Repeater {
                model: root.vc.rows
                ItemDelegate {
                    id: row
                    required property int index
                    required property var modelData
                    objectName: "sourceRow" + index
                    Layout.fillWidth: true
                    enabled: modelData.enabled
                    onClicked: root.vc.selectRow(index)
                    contentItem: RowLayout {
                        spacing: Theme.margin
                        AssetIcon {
                            asset: row.modelData.image
                            color: Theme.text
                            opacity: row.enabled ? 1 : 0.4
                            Layout.preferredWidth: Theme.iconSize
                            Layout.preferredHeight: Theme.iconSize
                        }
                        ColumnLayout {
                            spacing: 0
                            Layout.fillWidth: true
                            Label {
                                Layout.fillWidth: true
                                text: row.modelData.title
                                color: row.enabled ? Theme.text : Theme.textMuted
                                font.family: Theme.titleFont
                                font.pixelSize: Theme.fontTitle
                            }
                            Label {
                                objectName: "sourceRowDetail" + row.index
                                Layout.fillWidth: true
                                visible: text.length > 0
                                text: row.modelData.detail
                                color: Theme.textMuted
                                font.family: Theme.bodyFont
                                font.pixelSize: Theme.fontSmall
                            }
                        }
                    }
                }
            }
            Rectangle {
                Layout.fillWidth: true
                implicitHeight: 1
                color: Theme.separator
            }
            ItemDelegate {
                id: cancel
                objectName: "cancelButton"
                Layout.fillWidth: true
                text: qsTr("Cancel")
                onClicked: root.vc.cancel()
                contentItem: Label {
                    text: cancel.text
                    horizontalAlignment: Text.AlignHCenter
                    color: Theme.accent
                    font.family: Theme.titleFont
                    font.weight: Font.Medium
                    font.pixelSize: Theme.fontTitle
                }
            }
        }
        BusyIndicator {
            anchors.centerIn: parent
            running: root.vc.isPreparing
            visible: running
        }
    }

    FileDialog {
        id: gallery
        objectName: "galleryDialog"
        title: root.vc.title
        // The dialog matches names case by case, and cameras name their photographs in capitals.
        nameFilters: [qsTr("Pictures (*.png *.jpg *.jpeg *.webp *.gif *.bmp *.PNG *.JPG *.JPEG *.WEBP *.GIF *.BMP)")]
        onAccepted: root.vc.pickedFile(gallery.selectedFile)
    }
    Connections {
        target: root.vc
        function onGalleryRequested() { gallery.open() }
    }
}
