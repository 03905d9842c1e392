pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Ui

/** The blank start: the image and video canvas sizes, each drawn as its shape. */
Page {
    id: root

    required property var vc

    background: Rectangle {
        color: Theme.background
    }
    header: BackBar {
        vc: root.vc
    }

    component SizeTile: ItemDelegate {
        id: tile

        required property int index
        required property var modelData
        property bool video: false

        width: 104
        height: 140
        onClicked: root.vc.didSelect(tile.video, tile.index)

        background: Rectangle {
            radius: Theme.radius
            color: tile.down ? Theme.accentSoft : Theme.surface
        }
        contentItem: Column {
            spacing: Theme.spacing
            topPadding: Theme.spacing
            AssetIcon {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 2 * Theme.iconSize
                height: width
                asset: tile.modelData.image
                color: Theme.accent
            }
            Label {
                width: parent.width
                text: tile.modelData.name
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                color: Theme.text
                font.family: Theme.titleFont
                font.pixelSize: Theme.fontSmall
            }
            Label {
                width: parent.width
                text: tile.modelData.ratio
                horizontalAlignment: Text.AlignHCenter
                visible: text.length > 0
                color: Theme.textMuted
                font.family: Theme.bodyFont
                font.pixelSize: Theme.fontSmall
            }
        }
    }

    component Section: ColumnLayout {
        id: section

        property string title
        property var sizes
        property bool video: false

        Layout.fillWidth: true
        spacing: Theme.spacing
        Label {
            text: section.title
            color: Theme.text
            font.family: Theme.titleFont
            font.weight: Font.Medium
            font.pixelSize: Theme.fontTitle
        }
        Flow {
            Layout.fillWidth: true
            spacing: Theme.spacing
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
        contentHeight: sections.implicitHeight + 2 * Theme.margin
        clip: true
        ScrollIndicator.vertical: ScrollIndicator { }

        ColumnLayout {
            id: sections
            x: Theme.margin
            y: Theme.margin
            width: parent.width - 2 * Theme.margin
            spacing: 2 * Theme.margin

            Section {
                objectName: "imageSizes"
                title: qsTr("Image")
                sizes: root.vc ? root.vc.imageSizes : []
            }
            Section {
                objectName: "videoSizes"
                title: qsTr("Video")
                sizes: root.vc ? root.vc.videoSizes : []
                video: true
            }
        }
    }
}
