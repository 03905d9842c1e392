import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Browse
import Quillet.Ui

/** The home screen: the title bar and the four design tabs. */
Page {
    id: root
    required property var vc

    background: Rectangle { color: Theme.background }

    header: Rectangle {
        height: Theme.barHeight + tabs.height
        color: Theme.accent

        RowLayout {
            id: bar
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            height: Theme.barHeight
            anchors.leftMargin: Theme.margin
            anchors.rightMargin: Theme.margin
            spacing: Theme.spacing

            AssetIcon {
                objectName: "menuButton"
                asset: "ic_menu"
                color: Theme.textOnAccent
                Layout.preferredWidth: Theme.iconSize
                Layout.preferredHeight: Theme.iconSize
            }
            Label {
                Layout.fillWidth: true
                text: root.vc.title
                color: Theme.textOnAccent
                font.family: Theme.titleFont
                font.weight: Font.Medium
                font.pixelSize: Theme.fontTitle + 2
                horizontalAlignment: Text.AlignHCenter
            }
            AssetIcon {
                objectName: "searchButton"
                asset: "ic_search"
                color: Theme.textOnAccent
                Layout.preferredWidth: Theme.iconSize
                Layout.preferredHeight: Theme.iconSize
                opacity: root.vc.searchAvailable ? 1 : 0.4
                TapHandler {
                    enabled: root.vc.searchAvailable
                    onTapped: root.vc.searchClicked()
                }
            }
        }

        Row {
            id: tabs
            objectName: "tabs"
            anchors.top: bar.bottom
            anchors.left: parent.left
            anchors.right: parent.right
            height: Theme.tabHeight
            Repeater {
                model: root.vc.tabTitles
                delegate: Item {
                    id: tab
                    required property int index
                    required property string modelData
                    readonly property bool selected: root.vc.selectedTab === index
                    width: tabs.width / root.vc.tabTitles.length
                    height: tabs.height
                    Label {
                        anchors.centerIn: parent
                        text: tab.modelData
                        color: Theme.textOnAccent
                        opacity: tab.selected ? 1 : 0.7
                        font.family: Theme.titleFont
                        font.weight: tab.selected ? Font.Medium : Font.Normal
                        font.pixelSize: Theme.fontBody
                    }
                    Rectangle {
                        anchors.bottom: parent.bottom
                        anchors.horizontalCenter: parent.horizontalCenter
                        width: parent.width * 0.6
                        height: 3
                        radius: 1.5
                        color: Theme.textOnAccent
                        visible: tab.selected
                    }
                    TapHandler { onTapped: root.vc.selectedTab = tab.index }
                }
            }
        }
    }

    StackLayout {
        anchors.fill: parent
        currentIndex: root.vc.selectedTab
        Repeater {
            model: root.vc.tabTitles
            delegate: Item {
                id: page
                required property int index
                required property string modelData
                readonly property var screen: root.vc.tabScreens[index]

                ScreenLoader {
                    objectName: "tabLoader" + page.index
                    anchors.fill: parent
                    screen: page.screen
                }
                // A tab whose screen is not built yet: a few sample designs and a way to start one.
                Column {
                    anchors.centerIn: parent
                    spacing: Theme.margin
                    width: parent.width - 4 * Theme.margin
                    visible: !page.screen
                    Row {
                        anchors.horizontalCenter: parent.horizontalCenter
                        spacing: Theme.spacing
                        Repeater {
                            model: 3
                            delegate: SampleCard {
                                required property int index
                                name: page.modelData + index
                                width: 64
                                height: 112
                                opacity: 0.9
                            }
                        }
                    }
                    Label {
                        width: parent.width
                        text: qsTr("Your designs will live here")
                        font.family: Theme.titleFont
                        font.weight: Font.Medium
                        font.pixelSize: Theme.fontTitle
                        color: Theme.text
                        horizontalAlignment: Text.AlignHCenter
                        wrapMode: Text.WordWrap
                    }
                    Button {
                        objectName: "createOwnButton"
                        anchors.horizontalCenter: parent.horizontalCenter
                        text: qsTr("Create your own")
                        highlighted: true
                        font.family: Theme.titleFont
                        onClicked: root.vc.createOwnClicked()
                    }
                }
            }
        }
    }
}
