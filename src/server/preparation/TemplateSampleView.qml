import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

/** The preview of a template while it is made complete: spinner and veil, then Edit; Retry on failure. */
Page {
    id: root

    required property var vc

    header: ToolBar {
        RowLayout {
            anchors.fill: parent
            ToolButton {
                objectName: "cancelButton"
                text: qsTr("Cancel")
                onClicked: root.vc.cancelClicked()
            }
            Item { Layout.fillWidth: true }
            ToolButton {
                objectName: "editBtn"
                text: qsTr("Edit")
                enabled: root.vc.editEnabled
                onClicked: root.vc.editClicked()
            }
        }
    }

    Item {
        id: container
        anchors.fill: parent
        anchors.margins: 16

        // Stands in for the preview until its picture has come.
        Image {
            objectName: "placeholder"
            anchors.fill: sampleImg
            visible: sampleImg.status !== Image.Ready
            source: "image://assets/img_placeholder"
            sourceSize: Qt.size(width, height)
            fillMode: Image.PreserveAspectCrop
        }
        Image {
            id: sampleImg
            objectName: "sampleImg"
            anchors.centerIn: parent
            width: root.vc.previewAspect > 0 ? Math.min(container.width, container.height * root.vc.previewAspect) : container.width
            height: root.vc.previewAspect > 0 ? width / root.vc.previewAspect : container.height
            source: root.vc.previewSource
            asynchronous: true
            fillMode: Image.PreserveAspectFit
        }
        Rectangle {
            objectName: "layerView"
            anchors.fill: sampleImg
            visible: root.vc.veilVisible
            color: palette.shadow
            opacity: 0.4
            radius: 8
        }
        BusyIndicator {
            objectName: "activityIndicator"
            anchors.centerIn: sampleImg
            running: root.vc.spinnerRunning
        }
        Button {
            objectName: "retryBtn"
            anchors.centerIn: sampleImg
            visible: root.vc.retryVisible
            icon.source: "image://assets/retry"
            text: qsTr("Retry")
            onClicked: root.vc.reTryClicked()
        }
    }
}
