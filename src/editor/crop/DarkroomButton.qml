import QtQuick
import QtQuick.Controls
import Quillet.Ui

/** A text button on the dark screens of the crop and the camera: "Cancel", "Done". */
ToolButton {
    id: root

    contentItem: Label {
        text: root.text
        color: root.highlighted ? Theme.accent : Theme.textOnAccent
        opacity: root.enabled ? 1 : 0.4
        font.family: Theme.titleFont
        font.weight: Font.Medium
        font.pixelSize: Theme.fontTitle
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
}
