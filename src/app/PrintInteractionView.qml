import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Ui

/** The print panel: where to print, how many copies, Print and Cancel. */
Page {
    id: root
    required property var vc

    background: Rectangle { color: Theme.background }

    header: Rectangle {
        height: Theme.barHeight
        color: Theme.accent
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.margin
            anchors.rightMargin: Theme.margin
            ToolButton {
                objectName: "cancelButton"
                text: qsTr("Cancel")
                palette.buttonText: Theme.textOnAccent
                enabled: !root.vc.printing
                onClicked: root.vc.cancel()
            }
            Label {
                Layout.fillWidth: true
                text: qsTr("Print")
                color: Theme.textOnAccent
                font.family: Theme.titleFont
                font.weight: Font.Medium
                font.pixelSize: Theme.fontTitle
                horizontalAlignment: Text.AlignHCenter
            }
            ToolButton {
                objectName: "printButton"
                text: qsTr("Print")
                palette.buttonText: Theme.textOnAccent
                enabled: !root.vc.printing
                onClicked: root.vc.print()
            }
        }
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.margin
        spacing: Theme.spacing * 2

        Label {
            text: qsTr("Printer")
            font.family: Theme.bodyFont
            color: Theme.textMuted
        }
        ComboBox {
            objectName: "printerBox"
            Layout.fillWidth: true
            model: root.vc.printers
            currentIndex: root.vc.printerIndex
            onActivated: index => root.vc.printerIndex = index
        }
        RowLayout {
            visible: root.vc.showsNumberOfCopies
            Label {
                Layout.fillWidth: true
                text: qsTr("Copies")
                font.family: Theme.bodyFont
                color: Theme.text
            }
            SpinBox {
                objectName: "copiesBox"
                from: 1
                to: 99
                value: root.vc.copies
                onValueModified: root.vc.copies = value
            }
        }
        BusyIndicator {
            Layout.alignment: Qt.AlignHCenter
            running: root.vc.printing
            visible: running
        }
        Label {
            Layout.fillWidth: true
            visible: text.length > 0
            text: root.vc.errorString
            color: Theme.accentDark
            wrapMode: Text.WordWrap
        }
        Item { Layout.fillHeight: true }
    }
}
