import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Ui

/** "Fonts": four tabs over their pages, and the "How to ?" item. */
Page {
    id: root

    required property var vc

    title: root.vc.title
    background: Rectangle { color: Theme.surface }

    header: ToolBar {
        RowLayout {
            anchors.fill: parent
            IconButton {
                objectName: "backButton"
                asset: "fontpicker_back"
                color: Theme.textOnAccent
                onClicked: root.vc.back()
            }
            Label {
                text: root.vc.title
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                color: Theme.textOnAccent
                font.family: Theme.titleFont
                font.weight: Font.Medium
                font.pixelSize: Theme.fontTitle
            }
            ToolButton {
                id: howTo
                objectName: "howToButton"
                text: qsTr("How to ?")
                onClicked: root.vc.howTo()
                contentItem: Label {
                    text: howTo.text
                    color: Theme.textOnAccent
                    font.family: Theme.bodyFont
                    font.weight: Font.Medium
                    font.pixelSize: Theme.fontSmall
                    verticalAlignment: Text.AlignVCenter
                }
            }
        }
    }

    ColumnLayout {
        anchors.fill: parent
        TabBar {
            id: tabs
            objectName: "tabs"
            Layout.fillWidth: true
            currentIndex: root.vc.currentIndex
            onCurrentIndexChanged: root.vc.currentIndex = currentIndex
            Repeater {
                model: root.vc.tabTitles
                TabButton {
                    required property string modelData
                    text: modelData
                    leftPadding: Theme.spacing / 2
                    rightPadding: Theme.spacing / 2
                    font.family: Theme.titleFont
                    font.pixelSize: Theme.fontSmall
                }
            }
        }
        StackLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            currentIndex: root.vc.currentIndex
            FontpickerDownloadView { vc: root.vc.pages[0] }
            FontpickerFontListView { vc: root.vc.pages[1] }
            FontpickerFontListView { vc: root.vc.pages[2] }
            FontpickerCustomView { vc: root.vc.pages[3] }
        }
    }
}
