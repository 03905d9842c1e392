pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Quillet.Editor.Pickers
import Quillet.Ui
import QtQuick.Layouts

/** A picker pager: its title, a tab per page ("Pick your own", then one per catalog) and the pages. */
Page {
    id: root

    required property var vc

    title: root.vc.title
    background: Rectangle { color: Theme.surface }

    header: ToolBar {
        RowLayout {
            anchors.fill: parent
            IconButton {
                id: backButton
                objectName: "backButton"
                asset: "ic_back"
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
            Item {
                Layout.preferredWidth: backButton.width
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
                    leftPadding: Theme.margin
                    rightPadding: Theme.margin
                    font.family: Theme.titleFont
                    font.pixelSize: Theme.fontSmall
                }
            }
        }
        RowLayout {
            objectName: "failedBar"
            Layout.fillWidth: true
            Layout.margins: Theme.spacing
            visible: root.vc.loadingState === CatalogScreen.Failed
            Label {
                text: qsTr("The catalogs could not be loaded.")
                Layout.fillWidth: true
                color: Theme.textMuted
                font.family: Theme.bodyFont
                font.pixelSize: Theme.fontBody
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
