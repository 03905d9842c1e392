import QtQuick
import QtQuick.Controls

/**
 * The rounded tile of the pickers: a picture or a colour, an optional word under it, and three dots
 * that pulse while the picture loads.
 */
Item {
    id: root

    property alias source: imageView.source
    property color fill: "transparent"
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
        border.color: root.selected ? root.palette.highlight : root.palette.mid
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
                    color: root.palette.mid
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
        elide: Text.ElideRight
        font.pixelSize: 12
    }
    TapHandler {
        onTapped: root.clicked()
    }
}
