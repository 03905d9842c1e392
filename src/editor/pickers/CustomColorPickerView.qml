import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Ui

/** A colour of one's own: saturation and brightness in the square, hue in the bar, or six hex digits. */
Page {
    id: root

    required property var vc

    title: root.vc.title
    background: Rectangle { color: Theme.surface }

    header: ToolBar {
        RowLayout {
            anchors.fill: parent
            IconButton {
                objectName: "cancelButton"
                asset: "ic_back"
                color: Theme.textOnAccent
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
                id: doneButton
                objectName: "doneButton"
                text: qsTr("Done")
                onClicked: root.vc.done()
                contentItem: Label {
                    text: doneButton.text
                    color: Theme.textOnAccent
                    font.family: Theme.bodyFont
                    font.weight: Font.Medium
                    font.pixelSize: Theme.fontBody
                    verticalAlignment: Text.AlignVCenter
                }
            }
        }
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.margin
        spacing: Theme.margin

        Rectangle {
            id: square
            objectName: "saturationBrightness"
            Layout.fillWidth: true
            Layout.preferredHeight: width
            radius: 8
            color: Qt.hsva(root.vc.hue, 1, 1, 1)
            Rectangle {
                anchors.fill: parent
                radius: 8
                gradient: Gradient {
                    orientation: Gradient.Horizontal
                    GradientStop { position: 0; color: "white" }
                    GradientStop { position: 1; color: "transparent" }
                }
            }
            Rectangle {
                anchors.fill: parent
                radius: 8
                gradient: Gradient {
                    GradientStop { position: 0; color: "transparent" }
                    GradientStop { position: 1; color: "black" }
                }
            }
            Rectangle {
                objectName: "picked"
                x: root.vc.saturation * square.width - width / 2
                y: (1 - root.vc.brightness) * square.height - height / 2
                width: 22
                height: 22
                radius: 11
                color: "transparent"
                border.color: Theme.scrim
                border.width: 1
                Rectangle {
                    anchors.fill: parent
                    anchors.margins: 1
                    radius: width / 2
                    color: "transparent"
                    border.color: Theme.surface
                    border.width: 3
                }
            }
            DragHandler {
                target: null
                onCentroidChanged: if (active) square.pick(centroid.position)
            }
            TapHandler {
                onTapped: (eventPoint) => square.pick(eventPoint.position)
            }
            function pick(point) {
                root.vc.saturation = point.x / square.width
                root.vc.brightness = 1 - point.y / square.height
            }
        }
        Rectangle {
            id: hueBar
            objectName: "hueBar"
            Layout.fillWidth: true
            Layout.preferredHeight: 28
            radius: 14
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0 / 6; color: "#FF0000" }
                GradientStop { position: 1 / 6; color: "#FFFF00" }
                GradientStop { position: 2 / 6; color: "#00FF00" }
                GradientStop { position: 3 / 6; color: "#00FFFF" }
                GradientStop { position: 4 / 6; color: "#0000FF" }
                GradientStop { position: 5 / 6; color: "#FF00FF" }
                GradientStop { position: 6 / 6; color: "#FF0000" }
            }
            Rectangle {
                x: root.vc.hue * hueBar.width - width / 2
                anchors.verticalCenter: parent.verticalCenter
                width: 8
                height: hueBar.height + 6
                radius: 4
                color: "white"
                border.color: "#40000000"
            }
            DragHandler {
                target: null
                onCentroidChanged: if (active) root.vc.hue = centroid.position.x / hueBar.width
            }
            TapHandler {
                onTapped: (eventPoint) => root.vc.hue = eventPoint.position.x / hueBar.width
            }
        }
        RowLayout {
            spacing: 12
            Rectangle {
                objectName: "preview"
                Layout.preferredWidth: 48
                Layout.preferredHeight: 48
                radius: 8
                color: root.vc.color
                border.color: Theme.separator
            }
            Label {
                text: "#"
            }
            TextField {
                objectName: "hexField"
                Layout.fillWidth: true
                text: root.vc.hexText
                maximumLength: 7
                inputMethodHints: Qt.ImhPreferUppercase | Qt.ImhNoPredictiveText
                onEditingFinished: root.vc.setHexText(text)
            }
        }
        Item {
            Layout.fillHeight: true
        }
    }
}
