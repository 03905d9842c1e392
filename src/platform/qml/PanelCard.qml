import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

/**
 * The card of a waiting or progress notice (a PanelModel): a spinner, the text, the detail line and
 * the progress when known; in the accent colour with white text when the panel asks for it.
 */
Rectangle {
    id: root
    required property var panel
    /** The card's colour in the accent style; the export's progress lets the movie show through. */
    property real accentOpacity: 1.0
    readonly property bool accent: root.panel !== null && root.panel.accent
    readonly property color ink: root.accent ? Theme.textOnAccent : Theme.text

    implicitWidth: 300
    implicitHeight: column.implicitHeight + 2 * Theme.margin
    radius: root.accent ? Theme.radius / 2 : Theme.radius
    clip: true
    color: root.accent ? Qt.rgba(Theme.accent.r, Theme.accent.g, Theme.accent.b, root.accentOpacity) : Theme.surface

    ColumnLayout {
        id: column
        anchors.fill: parent
        anchors.margins: Theme.margin
        spacing: Theme.spacing * 1.5

        BusyIndicator {
            Layout.alignment: Qt.AlignHCenter
            visible: root.panel !== null && root.panel.progress < 0
            running: root.visible && visible
        }
        Label {
            objectName: "panelText"
            Layout.fillWidth: true
            text: root.panel ? root.panel.text : ""
            font.family: Theme.bodyFont
            font.pixelSize: Theme.fontBody
            font.bold: root.accent
            color: root.ink
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
        }
        ProgressBar {
            objectName: "panelProgress"
            Layout.fillWidth: true
            visible: root.panel !== null && root.panel.progress >= 0
            value: root.panel ? root.panel.progress : 0
        }
        Label {
            objectName: "panelDetail"
            Layout.fillWidth: true
            visible: text.length > 0
            text: root.panel ? root.panel.detailText : ""
            font.family: Theme.bodyFont
            font.pixelSize: Theme.fontSmall
            color: root.ink
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
