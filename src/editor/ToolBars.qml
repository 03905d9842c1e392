import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Editor
import Quillet.Ui

/**
 * The bars below the canvas: the shared area (`viewContent`) with the tool's content, a slider, the
 * rotation or scale view or the colour strip, and under it the top-level menu or the tool bar.
 */
Rectangle {
    id: root

    required property var vc
    readonly property var menus: root.vc.menus
    readonly property var sliders: root.menus.sliders
    readonly property bool topLevel: root.menus.menuTag === 0
    // A tool whose rows are its content (the filters) shows them in the bar itself.
    readonly property var barRows: root.topLevel ? root.menus.topItems
        : root.menus.menuItems.length > 0 ? root.menus.menuItems : root.menus.contentItems

    implicitHeight: Theme.toolBarHeight * 2 - Theme.spacing
    color: Theme.surface

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        Item {
            id: viewContent
            objectName: "viewContent"
            Layout.fillWidth: true
            Layout.fillHeight: true

            MenuBar {
                objectName: "contentCollectionView"
                anchors.fill: parent
                visible: root.menus.control === ToolMenus.None && !root.topLevel && root.menus.menuItems.length > 0
                model: root.menus.contentItems
                onRowTapped: row => root.menus.didSelectContentRow(row)
            }

            Label {
                objectName: "noDataView"
                anchors.centerIn: parent
                visible: root.menus.noDataShown
                text: qsTr("No items found")
                color: Theme.textMuted
                font.family: Theme.bodyFont
                font.pixelSize: Theme.fontBody
            }

            Label {
                anchors.centerIn: parent
                visible: root.topLevel && !root.menus.noDataShown
                text: qsTr("Tap a layer to edit it, or the canvas for the background")
                color: Theme.textMuted
                font.family: Theme.bodyFont
                font.pixelSize: Theme.fontSmall
                width: parent.width - Theme.margin * 2
                horizontalAlignment: Text.AlignHCenter
                elide: Text.ElideRight
            }

            RowLayout {
                objectName: "sliderView"
                anchors.fill: parent
                anchors.leftMargin: Theme.margin
                anchors.rightMargin: Theme.margin
                visible: root.menus.control === ToolMenus.Slider
                Slider {
                    objectName: "toolSlider"
                    Layout.fillWidth: true
                    from: root.sliders.minimum
                    to: root.sliders.maximum
                    value: root.sliders.value
                    onMoved: root.sliders.sliderChanged(value)
                    onPressedChanged: if (!pressed) root.sliders.sliderDidEndSliding()
                }
                Label {
                    objectName: "lblSlider"
                    Layout.minimumWidth: Theme.touchTarget
                    horizontalAlignment: Text.AlignRight
                    text: root.sliders.lblSlider
                    color: Theme.text
                    font.family: Theme.bodyFont
                    font.pixelSize: Theme.fontBody
                }
            }

            RowLayout {
                objectName: "viewRotation"
                anchors.fill: parent
                anchors.leftMargin: Theme.spacing
                anchors.rightMargin: Theme.spacing
                visible: root.menus.control === ToolMenus.Rotation
                HoldButton {
                    objectName: "btnViewLeftRotation"
                    symbol: "\u21BA"
                    onStepped: root.sliders.rotateBy(-1)
                    onLetGo: root.sliders.rotationDidEnd()
                }
                Slider {
                    objectName: "rotationSlider"
                    Layout.fillWidth: true
                    from: -180
                    to: 180
                    value: root.sliders.rotation
                    onMoved: root.sliders.rotationChanged(value)
                    onPressedChanged: if (!pressed) root.sliders.rotationDidEnd()
                }
                HoldButton {
                    objectName: "btnViewRightRotation"
                    symbol: "\u21BB"
                    onStepped: root.sliders.rotateBy(1)
                    onLetGo: root.sliders.rotationDidEnd()
                }
            }

            RowLayout {
                objectName: "viewScale"
                anchors.fill: parent
                anchors.leftMargin: Theme.spacing
                anchors.rightMargin: Theme.spacing
                visible: root.menus.control === ToolMenus.Scale
                HoldButton {
                    objectName: "btnViewMin"
                    symbol: "\u2212"
                    onStepped: root.sliders.scaleBy(-0.02)
                    onLetGo: root.sliders.scaleDidEnd()
                }
                Slider {
                    objectName: "scaleSlider"
                    Layout.fillWidth: true
                    from: 0
                    to: root.sliders.scaleMaximum
                    value: root.sliders.scale
                    onMoved: root.sliders.scaleChanged(value)
                    onPressedChanged: if (!pressed) root.sliders.scaleDidEnd()
                }
                HoldButton {
                    objectName: "btnViewMax"
                    symbol: "+"
                    onStepped: root.sliders.scaleBy(0.02)
                    onLetGo: root.sliders.scaleDidEnd()
                }
            }

            RowLayout {
                objectName: "colorPickerView"
                anchors.fill: parent
                anchors.leftMargin: Theme.spacing
                spacing: Theme.spacing
                visible: root.menus.control === ToolMenus.Colors
                AbstractButton {
                    objectName: "add_color_header_cell"
                    implicitWidth: Theme.touchTarget
                    implicitHeight: Theme.touchTarget
                    onClicked: root.menus.openCustomColorPicker()
                    background: Rectangle {
                        radius: width / 2
                        color: "transparent"
                        border.color: "#B0A8B7"
                    }
                    contentItem: AssetIcon {
                        asset: "sc_plus"
                        width: Theme.iconSize
                        height: Theme.iconSize
                    }
                }
                ListView {
                    id: swatches
                    objectName: "colorSwatches"
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    orientation: ListView.Horizontal
                    clip: true
                    spacing: Theme.spacing / 2
                    model: root.menus.colors
                    currentIndex: root.menus.colorIndex
                    onVisibleChanged: if (visible && currentIndex >= 0) positionViewAtIndex(currentIndex, ListView.Center)
                    delegate: AbstractButton {
                        required property color modelData
                        required property int index
                        width: Theme.touchTarget
                        height: ListView.view.height
                        onClicked: root.menus.didSelectColor(index)
                        contentItem: Item {
                            Rectangle {
                                anchors.centerIn: parent
                                width: Theme.touchTarget - 8
                                height: width
                                radius: width / 2
                                color: modelData
                                border.width: index === root.menus.colorIndex ? 3 : 1
                                border.color: index === root.menus.colorIndex ? Theme.accent : Theme.separator
                            }
                        }
                    }
                }
            }
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: 1
            color: Theme.separator
        }

        MenuBar {
            objectName: root.topLevel ? "menuContentCollectionView" : "menuCollectionView"
            Layout.fillWidth: true
            Layout.preferredHeight: Theme.toolBarHeight
            model: root.barRows
            onRowTapped: row => root.menus.menuItems.length > 0 || root.topLevel
                ? root.menus.didSelectMenuRow(row) : root.menus.didSelectContentRow(row)
        }
    }
}
