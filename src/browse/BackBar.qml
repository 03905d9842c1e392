import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Ui

/** The bar of a pushed screen: back, and the screen's title in the middle. */
ToolBar {
    id: root

    required property var vc

    background: Rectangle {
        color: Theme.accent
    }

    RowLayout {
        anchors.fill: parent
        IconButton {
            objectName: "backButton"
            asset: "ic_back"
            color: Theme.textOnAccent
            onClicked: root.vc.goBack()
        }
        Label {
            Layout.fillWidth: true
            text: root.vc ? root.vc.title : ""
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            color: Theme.textOnAccent
            font.family: Theme.titleFont
            font.weight: Font.Medium
            font.pixelSize: Theme.fontTitle
        }
        Item {
            Layout.preferredWidth: Theme.barHeight - Theme.spacing
        }
    }
}
