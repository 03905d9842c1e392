import QtQuick
import QtQuick.Controls
import Quillet.Ui

/** One template card: its picture fitted in the card, over a placeholder until the picture has arrived. */
Item {
    id: root

    required property int index
    required property string thumbnail
    required property real aspect
    /** The size the picture is scaled to off the GUI thread; the same for every card of a grid. */
    property size pictureSize
    /** Space around the card inside its cell. */
    property real padding: 0
    readonly property bool pictureShown: picture.status === Image.Ready
    signal tapped

    Rectangle {
        objectName: "placeholder"
        anchors.fill: parent
        anchors.margins: root.padding
        radius: Theme.spacing
        color: Theme.separator
        visible: picture.status !== Image.Ready

        AssetIcon {
            anchors.centerIn: parent
            width: parent.width / 4
            height: width
            asset: "img_placeholder"
            color: Theme.textMuted
        }
    }
    Image {
        id: picture
        anchors.fill: parent
        anchors.margins: root.padding
        source: root.thumbnail
        sourceSize: root.pictureSize
        fillMode: Image.PreserveAspectFit
        asynchronous: true
    }
    TapHandler {
        onTapped: root.tapped()
    }
}
