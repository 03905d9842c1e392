pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

/** The blank start: the image and video canvas sizes, each drawn as its shape. */
Page {
    id: root

    required property var vc

    header: BackBar {
        vc: root.vc
    }

    component SizeTile: ItemDelegate {
        id: tile

        required property int index
        required property var modelData
        property bool video: false
        readonly property real shapeScale: tile.modelData.width > 0 && tile.modelData.height > 0
                                           ? 56 / Math.max(tile.modelData.width, tile.modelData.height) : 0

        width: 104
        height: 132
        onClicked: root.vc.didSelect(tile.video, tile.index)

        contentItem: Column {
            spacing: 6
            Item {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 64
                height: 64
                Rectangle {
                    anchors.centerIn: parent
                    width: tile.shapeScale > 0 ? tile.modelData.width * tile.shapeScale : 44
                    height: tile.shapeScale > 0 ? tile.modelData.height * tile.shapeScale : 44
                    radius: 4
                    color: "transparent"
                    border.width: 2
                    border.color: palette.highlight
                    Label {
                        anchors.centerIn: parent
                        text: tile.shapeScale > 0 ? tile.modelData.ratio : "+"
                        font.pixelSize: tile.shapeScale > 0 ? 11 : 22
                        color: palette.highlight
                    }
                }
            }
            Label {
                width: parent.width
                text: tile.modelData.name
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                font.family: "Rubik"
                font.pixelSize: 12
            }
        }
    }

    component Section: ColumnLayout {
        id: section

        property string title
        property var sizes
        property bool video: false

        Layout.fillWidth: true
        spacing: 8
        Label {
            text: section.title
            font.family: "Rubik"
            font.weight: Font.Medium
            font.pixelSize: 16
        }
        Flow {
            Layout.fillWidth: true
            spacing: 8
            Repeater {
                model: section.sizes
                delegate: SizeTile {
                    video: section.video
                }
            }
        }
    }

    Flickable {
        anchors.fill: parent
        contentHeight: sections.implicitHeight + 32
        clip: true
        ScrollIndicator.vertical: ScrollIndicator { }

        ColumnLayout {
            id: sections
            x: 16
            y: 16
            width: parent.width - 32
            spacing: 20

            Section {
                objectName: "imageSizes"
                title: qsTr("Image")
                sizes: root.vc.imageSizes
            }
            Section {
                objectName: "videoSizes"
                title: qsTr("Video")
                sizes: root.vc.videoSizes
                video: true
            }
        }
    }
}
