import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

/** A colour of one's own: saturation and brightness in the square, hue in the bar, or six hex digits. */
Page {
    id: root

    required property var vc

    title: root.vc.title

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
                font.bold: true
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
            }
            ToolButton {
                objectName: "doneButton"
                text: qsTr("Done")
                onClicked: root.vc.done()
            }
        }
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 16

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
                x: root.vc.saturation * square.width - width / 2
                y: (1 - root.vc.brightness) * square.height - height / 2
                width: 20
                height: 20
                radius: 10
                color: "transparent"
                border.color: "white"
                border.width: 3
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
                border.color: root.palette.mid
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
