import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

/** "Pick your own" of the background pager: gallery and camera, then the colour strip. */
Flickable {
    id: root

    required property var vc

    contentHeight: column.implicitHeight + 32
    clip: true

    ColumnLayout {
        id: column
        x: 16
        y: 16
        width: root.width - 32
        spacing: 12
        OwnPictureRows {
            vc: root.vc
        }
        Label {
            text: qsTr("Colors")
            font.bold: true
        }
        CreateColorCell {
            Layout.fillWidth: true
            Layout.preferredHeight: implicitHeight
            cell: root.vc.colorCell
        }
    }
}
