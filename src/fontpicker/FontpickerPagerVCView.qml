import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

/** "Fonts": four tabs over their pages, and the "How to ?" item. */
Page {
    id: root

    required property var vc

    title: root.vc.title

    header: ToolBar {
        RowLayout {
            anchors.fill: parent
            ToolButton {
                objectName: "backButton"
                icon.source: "image://assets/fontpicker_back"
                text: "\u2039"
                onClicked: root.vc.back()
            }
            Label {
                text: root.vc.title
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
            }
            ToolButton {
                objectName: "howToButton"
                text: qsTr("How to ?")
                onClicked: root.vc.howTo()
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
