import QtQuick
import QtQuick.Controls
import Quillet.Ui

/** A button of the rotation and scale views: one step per tap, repeated while held; `released` ends the change. */
AbstractButton {
    id: root

    property string symbol
    signal stepped
    signal letGo

    autoRepeat: true
    implicitWidth: Theme.touchTarget
    implicitHeight: Theme.touchTarget
    onClicked: root.stepped()
    onPressedChanged: if (!root.pressed) root.letGo()
    background: Rectangle {
        radius: width / 2
        color: root.pressed ? Theme.accentSoft : Theme.background
        border.color: Theme.separator
    }
    contentItem: Label {
        text: root.symbol
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        color: Theme.text
        font.pixelSize: Theme.fontTitle
    }
}
