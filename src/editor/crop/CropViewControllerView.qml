pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Editor.Crop
import Quillet.Ui

/** The image crop screen: the picture under the crop box, and the tool bar. CropViewController decides all. */
Rectangle {
    id: root

    required property var vc
    /** The box and the picture glide into place after a handle is let go, a turn, a reset or a new ratio. */
    readonly property bool settles: !root.vc.isInteracting && root.placed
    /** The first place of the box is taken at once. */
    property bool placed: false

    color: Theme.darkroom

    component Settle: NumberAnimation {
        duration: 250
        easing.type: Easing.OutCubic
    }
    component Shade: Rectangle {
        color: Theme.scrim
    }

    Connections {
        target: root.vc
        function onLayoutChanged() {
            if (!root.placed && root.vc.cropBoxRect.width > 0)
                Qt.callLater(() => root.placed = true)
        }
    }

    Item {
        id: area
        objectName: "cropArea"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: toolBar.top
        clip: true
        onWidthChanged: root.vc.setViewSize(area.width, area.height)
        onHeightChanged: root.vc.setViewSize(area.width, area.height)
        Component.onCompleted: root.vc.setViewSize(area.width, area.height)

        CropPictureItem {
            id: picture
            objectName: "picture"
            image: root.vc.preview
            x: root.vc.imageRect.x
            y: root.vc.imageRect.y
            width: root.vc.imageRect.width
            height: root.vc.imageRect.height
            Behavior on x { enabled: root.settles; Settle {} }
            Behavior on y { enabled: root.settles; Settle {} }
            Behavior on width { enabled: root.settles; Settle {} }
            Behavior on height { enabled: root.settles; Settle {} }
        }

        // The picture outside the box lies in shade.
        Shade { x: 0; y: 0; width: area.width; height: box.y }
        Shade { x: 0; y: box.y + box.height; width: area.width; height: area.height - y }
        Shade { x: 0; y: box.y; width: box.x; height: box.height }
        Shade { x: box.x + box.width; y: box.y; width: area.width - x; height: box.height }

        // The picture moves under the box with one finger, and zooms with two or with the wheel.
        DragHandler {
            target: null
            onActiveChanged: active ? root.vc.beginImageGesture() : root.vc.endImageGesture()
            onActiveTranslationChanged: {
                if (active)
                    root.vc.moveImage(activeTranslation.x, activeTranslation.y, 1, 0, 0)
            }
        }
        PinchHandler {
            id: pinch
            target: null
            onActiveChanged: active ? root.vc.beginImageGesture() : root.vc.endImageGesture()
            onUpdated: {
                if (active)
                    root.vc.moveImage(translation.x, translation.y, activeScale,
                                      centroid.pressPosition.x, centroid.pressPosition.y)
            }
        }
        WheelHandler {
            target: null
            onWheel: (wheel) => root.vc.zoomImage(Math.pow(1.002, wheel.angleDelta.y), point.position.x, point.position.y)
        }

        Item {
            id: box
            objectName: "cropBox"
            x: root.vc.cropBoxRect.x
            y: root.vc.cropBoxRect.y
            width: root.vc.cropBoxRect.width
            height: root.vc.cropBoxRect.height
            visible: root.vc.hasImage
            Behavior on x { enabled: root.settles; Settle {} }
            Behavior on y { enabled: root.settles; Settle {} }
            Behavior on width { enabled: root.settles; Settle {} }
            Behavior on height { enabled: root.settles; Settle {} }

            Rectangle {
                anchors.fill: parent
                color: "transparent"
                border.color: Theme.textOnAccent
                border.width: 1
            }
            // Thirds, while the box or the picture is held.
            Repeater {
                model: root.vc.isInteracting ? 4 : 0
                Rectangle {
                    required property int index
                    readonly property bool across: index < 2
                    x: across ? 0 : box.width * (index - 1) / 3
                    y: across ? box.height * (index + 1) / 3 : 0
                    width: across ? box.width : 1
                    height: across ? 1 : box.height
                    color: Theme.textOnAccent
                    opacity: 0.5
                }
            }
            Repeater {
                model: 8
                CropHandle {
                    required property int index
                    objectName: "handle" + index
                    handle: index
                    vc: root.vc
                }
            }
        }

        BusyIndicator {
            anchors.centerIn: parent
            running: root.vc.isBusy
            visible: running
        }
    }

    Rectangle {
        id: toolBar
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: Theme.toolBarHeight
        color: Theme.darkroom

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.spacing
            anchors.rightMargin: Theme.spacing
            DarkroomButton {
                objectName: "cancelButton"
                text: qsTr("Cancel")
                enabled: !root.vc.isBusy
                onClicked: root.vc.cancel()
            }
            Item { Layout.fillWidth: true }
            IconButton {
                objectName: "rotateLeftButton"
                asset: "crop_rotate_left"
                color: Theme.textOnAccent
                enabled: root.vc.hasImage && !root.vc.isBusy
                onClicked: root.vc.rotateCounterclockwise()
            }
            IconButton {
                objectName: "rotateButton"
                asset: "crop_rotate"
                color: Theme.textOnAccent
                enabled: root.vc.hasImage && !root.vc.isBusy
                onClicked: root.vc.rotateClockwise()
            }
            IconButton {
                objectName: "resetButton"
                asset: "crop_reset"
                color: Theme.textOnAccent
                enabled: root.vc.canReset && !root.vc.isBusy
                onClicked: root.vc.reset()
            }
            IconButton {
                id: ratioButton
                objectName: "ratioButton"
                asset: "crop_ratio"
                color: root.vc.aspectRatioIndex > 0 ? Theme.accent : Theme.textOnAccent
                enabled: root.vc.hasImage && !root.vc.isBusy
                onClicked: ratioMenu.popup(ratioButton, 0, -ratioMenu.implicitHeight)
            }
            Item { Layout.fillWidth: true }
            DarkroomButton {
                objectName: "doneButton"
                text: qsTr("Done")
                highlighted: true
                enabled: root.vc.hasImage && !root.vc.isBusy
                onClicked: root.vc.done()
            }
        }
    }

    Menu {
        id: ratioMenu
        objectName: "ratioMenu"
        Instantiator {
            model: root.vc.aspectRatioTitles
            delegate: MenuItem {
                required property int index
                required property string modelData
                objectName: "ratio_" + modelData
                text: modelData
                checkable: true
                checked: index === root.vc.aspectRatioIndex
                onTriggered: root.vc.selectAspectRatio(index)
            }
            onObjectAdded: (index, object) => ratioMenu.insertItem(index, object)
            onObjectRemoved: (index, object) => ratioMenu.removeItem(object)
        }
    }
}
