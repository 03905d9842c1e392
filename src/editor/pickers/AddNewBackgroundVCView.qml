import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Ui

/** "Pick your own" of the background pager: gallery and camera, then the colour strip. */
Flickable {
    id: root

    required property var vc

    contentHeight: column.implicitHeight + 2 * Theme.margin
    clip: true

    ColumnLayout {
        id: column
        x: Theme.margin
        y: Theme.margin
        width: root.width - 2 * Theme.margin
        spacing: Theme.margin
        OwnPictureRows {
            vc: root.vc
        }
        Label {
            text: qsTr("Colors")
            color: Theme.text
            font.family: Theme.titleFont
            font.weight: Font.Medium
            font.pixelSize: Theme.fontBody
        }
        CreateColorCell {
            Layout.fillWidth: true
            Layout.preferredHeight: implicitHeight
            cell: root.vc.colorCell
        }
    }
}
