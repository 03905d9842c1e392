import QtQuick
import QtQuick.Controls
import Quillet.Ui

/**
 * The rounded tile of the pickers: a picture, an icon of the application or a colour, an optional word
 * under it, and three dots that pulse while the picture loads.
 */
Item {
    id: root

    /** A picture that fills the tile. */
    property alias source: imageView.source
    /** An icon of the application, drawn in the accent in the middle of the tile. */
    property string asset
    property color fill: Theme.surface
    property alias text: lblText.text
    property bool selected: false
    readonly property bool loading: imageView.status === Image.Loading

    signal clicked()

    implicitWidth: 72
    implicitHeight: 72 + (lblText.text.length > 0 ? lblText.implicitHeight + 4 : 0)

    Rectangle {
        id: mainView
        objectName: "mainView"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: lblText.text.length > 0 ? lblText.top : parent.bottom
        anchors.bottomMargin: lblText.text.length > 0 ? 4 : 0
        radius: 10
        color: root.fill
        border.width: root.selected ? 3 : 1
        border.color: root.selected ? Theme.accent : Theme.separator
        clip: true

        Image {
            id: imageView
            objectName: "imageView"
            anchors.fill: parent
            anchors.margins: parent.border.width
            fillMode: Image.PreserveAspectCrop
            asynchronous: true
            smooth: true
        }
        AssetIcon {
            anchors.centerIn: parent
            width: Math.min(parent.width, parent.height) * 0.5
            height: width
            asset: root.asset
            color: Theme.accent
            visible: root.asset.length > 0
        }
        Row {
            anchors.centerIn: parent
            spacing: 6
            visible: root.loading
            Repeater {
                model: 3
                Rectangle {
                    id: dot
                    required property int index
                    objectName: ["firstView", "secoundView", "thirdView"][index]
                    width: 8
                    height: 8
                    radius: 4
                    color: Theme.textMuted
                    SequentialAnimation on opacity {
                        running: root.loading
                        loops: Animation.Infinite
                        PauseAnimation { duration: 150 * dot.index }
                        NumberAnimation { from: 1; to: 0.2; duration: 300 }
                        NumberAnimation { from: 0.2; to: 1; duration: 300 }
                    }
                }
            }
        }
    }
    Label {
        id: lblText
        objectName: "lblText"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        horizontalAlignment: Text.AlignHCenter
        // Long words ("Transparent") shrink to the tile before they are cut.
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 8
        elide: Text.ElideRight
        color: Theme.text
        font.family: Theme.bodyFont
        font.pixelSize: Theme.fontSmall
    }
    TapHandler {
        onTapped: root.clicked()
    }
}
