import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Ui

/** Draws the blocking notice of the moment: a dimmed screen, the text, and the progress when known. */
Item {
    id: root
    property var panel: null
    visible: root.panel !== null
    z: 900

    Rectangle {
        anchors.fill: parent
        color: Theme.scrim
        // Nothing below answers while work runs.
        TapHandler { }
        WheelHandler { }
    }

    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width - 4 * Theme.margin, 300)
        height: column.implicitHeight + 2 * Theme.margin
        radius: Theme.radius
        color: Theme.surface

        ColumnLayout {
            id: column
            anchors.fill: parent
            anchors.margins: Theme.margin
            spacing: Theme.spacing * 1.5

            BusyIndicator {
                Layout.alignment: Qt.AlignHCenter
                running: root.visible
            }
            Label {
                objectName: "panelText"
                Layout.fillWidth: true
                text: root.panel ? root.panel.text : ""
                font.family: Theme.bodyFont
                font.pixelSize: Theme.fontBody
                color: Theme.text
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
            }
            ProgressBar {
                objectName: "panelProgress"
                Layout.fillWidth: true
                visible: root.panel !== null && root.panel.progress >= 0
                value: root.panel ? root.panel.progress : 0
            }
        }
    }
}
