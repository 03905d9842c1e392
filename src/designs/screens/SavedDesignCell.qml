import QtQuick
import QtQuick.Controls
import Qt5Compat.GraphicalEffects
import Quillet.Browse
import Quillet.Ui

/**
 * One cell of the saved designs: the create-own cell, or a design's preview with rounded corners, its
 * video or GIF mark and its more button. Taps, long presses (or a right click) and the more button go
 * to the owner.
 */
Item {
    id: root

    required property int index
    required property bool isCreateOwn
    required property string picture
    required property bool isVideo
    required property bool isVideoGif
    required property bool clearBackground
    /** The size the preview is scaled to off the GUI thread. */
    property size pictureSize
    property real padding: 0
    /** The more button, for cells that have a sheet. */
    property bool moreVisible: true
    readonly property bool pictureShown: card.pictureShown
    signal tapped
    signal longPressed
    signal moreClicked

    Rectangle {
        id: frame
        anchors.fill: parent
        anchors.margins: root.padding
        radius: 8
        color: root.isCreateOwn ? Theme.accentSoft : root.clearBackground ? "transparent" : Theme.surface
        border.color: root.isCreateOwn ? Theme.accent : "transparent"
        border.width: root.isCreateOwn ? 1 : 0

        Column {
            anchors.centerIn: parent
            spacing: Theme.spacing
            visible: root.isCreateOwn
            AssetIcon {
                anchors.horizontalCenter: parent.horizontalCenter
                width: Theme.iconSize * 2
                height: width
                asset: "plus"
                color: Theme.accent
            }
            Label {
                objectName: "createOwnLabel"
                text: qsTr("Create your own")
                color: Theme.accent
                font.family: Theme.titleFont
                font.weight: Font.Medium
                font.pixelSize: Theme.fontBody
            }
        }
    }

    // The picture cut to the cell's rounded corners.
    TemplateCard {
        id: card
        anchors.fill: frame
        visible: !root.isCreateOwn
        index: root.index
        thumbnail: root.picture
        aspect: 0
        pictureSize: root.pictureSize
        layer.enabled: true
        layer.effect: OpacityMask {
            maskSource: Rectangle {
                width: card.width
                height: card.height
                radius: frame.radius
            }
        }
    }

    Rectangle {
        objectName: "videoMark"
        anchors.left: frame.left
        anchors.bottom: frame.bottom
        anchors.margins: Theme.spacing
        width: Theme.iconSize + Theme.spacing
        height: width
        radius: width / 2
        color: Theme.scrim
        visible: root.isVideo
        AssetIcon {
            anchors.centerIn: parent
            width: Theme.iconSize * 0.8
            height: width
            asset: root.isVideoGif ? "export_gif" : "ic_video"
            color: Theme.textOnAccent
        }
    }

    // A button, so that its press stays its own and never opens the design as well.
    RoundButton {
        objectName: "moreButton"
        anchors.right: frame.right
        anchors.top: frame.top
        anchors.margins: Theme.spacing / 2
        width: Theme.touchTarget * 0.75
        height: width
        padding: Theme.spacing / 2
        visible: root.moreVisible && !root.isCreateOwn
        icon.source: "image://assets/ic_more"
        icon.color: Theme.textOnAccent
        background: Rectangle {
            radius: width / 2
            color: Theme.scrim
        }
        onClicked: root.moreClicked()
    }

    TapHandler {
        onTapped: root.tapped()
        onLongPressed: root.longPressed()
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: root.longPressed()
    }
}
