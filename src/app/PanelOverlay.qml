import QtQuick
import Quillet.Ui

/** Draws the blocking notice of the moment over a dimmed screen. */
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

    PanelCard {
        anchors.centerIn: parent
        width: Math.min(parent.width - 4 * Theme.margin, implicitWidth)
        panel: root.panel
    }
}
