pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Quillet.Editor.Pickers
import QtQuick.Layouts

/** A picker pager: its title, a tab per page ("Pick your own", then one per catalog) and the pages. */
Page {
    id: root

    required property var vc

    title: root.vc.title

    header: ToolBar {
        RowLayout {
            anchors.fill: parent
            ToolButton {
                objectName: "backButton"
                text: "\u2039"
                font.pixelSize: 28
                onClicked: root.vc.back()
            }
            Label {
                text: root.vc.title
                font.bold: true
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
            }
            Item {
                Layout.preferredWidth: 48
            }
        }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0
        TabBar {
            objectName: "tabs"
            Layout.fillWidth: true
            currentIndex: root.vc.currentIndex
            onCurrentIndexChanged: root.vc.currentIndex = currentIndex
            Repeater {
                model: root.vc.tabTitles
                TabButton {
                    required property string modelData
                    text: modelData
                    width: implicitWidth
                }
            }
        }
        RowLayout {
            objectName: "failedBar"
            Layout.fillWidth: true
            Layout.margins: 8
            visible: root.vc.loadingState === CatalogScreen.Failed
            Label {
                text: qsTr("The catalogs could not be loaded.")
                Layout.fillWidth: true
            }
            Button {
                text: qsTr("Retry")
                onClicked: root.vc.retry()
            }
        }
        StackLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            currentIndex: root.vc.currentIndex
            Repeater {
                model: root.vc.pages
                Loader {
                    required property var modelData
                    Component.onCompleted: setSource(modelData.viewUrl, { vc: modelData })
                }
            }
        }
    }
    BusyIndicator {
        anchors.centerIn: parent
        running: root.vc.loadingState === CatalogScreen.Loading
    }
}
