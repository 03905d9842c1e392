import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quillet.Ui

/** Draws the alert of the moment: a dimmed screen with a card of title, message and buttons. */
Item {
    id: root
    property var alert: null
    visible: root.alert !== null
    z: 1000

    RegularExpressionValidator {
        id: digits
        regularExpression: /[0-9]{0,5}/
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.scrim
        TapHandler { }
    }

    // An alert sits in the middle. An action sheet rises from the bottom on a phone; on a tablet it stands
    // in the middle as a popover would, or hangs from the top, below the status bar and one bar, when it
    // asks to.
    readonly property bool sheet: root.alert !== null && root.alert.actionSheet
    readonly property bool tablet: Math.min(root.width, root.height) >= 600

    Rectangle {
        id: card
        objectName: "alertCard"
        x: (root.width - width) / 2
        y: !root.sheet ? (root.height - height) / 2
                       : !root.tablet ? root.height - height - Theme.margin
                                      : root.alert.anchoredAtTop ? 20 + Theme.touchTarget : (root.height - height) / 2
        width: Math.min(parent.width - 2 * Theme.margin * 2, root.sheet ? 340 : 300)
        height: column.implicitHeight + 2 * Theme.margin
        radius: Theme.radius
        color: Theme.surface

        ColumnLayout {
            id: column
            anchors.fill: parent
            anchors.margins: Theme.margin
            spacing: Theme.spacing

            Label {
                Layout.fillWidth: true
                text: root.alert ? root.alert.title : ""
                visible: text.length > 0
                font.family: Theme.titleFont
                font.pixelSize: Theme.fontTitle
                font.weight: Font.Medium
                color: Theme.text
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
            }
            Label {
                Layout.fillWidth: true
                text: root.alert ? root.alert.message : ""
                visible: text.length > 0
                font.family: Theme.bodyFont
                font.pixelSize: Theme.fontBody
                color: Theme.textMuted
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
            }
            Repeater {
                model: root.alert ? root.alert.textFieldPlaceholders : []
                delegate: TextField {
                    required property int index
                    required property string modelData
                    Layout.fillWidth: true
                    objectName: "alertField_" + modelData
                    placeholderText: modelData
                    text: root.alert.textFieldTexts[index]
                    inputMethodHints: root.alert.textFieldNumeric[index] ? Qt.ImhDigitsOnly : Qt.ImhNone
                    validator: root.alert.textFieldNumeric[index] ? digits : null
                    onTextEdited: root.alert.setTextFieldText(index, text)
                    // Typing goes to the first field at once, as the alert comes up.
                    Component.onCompleted: if (index === 0) forceActiveFocus()
                }
            }
            // Two buttons side by side; three or more stacked, so that long titles such as the sizes of a
            // save are read in full.
            GridLayout {
                Layout.fillWidth: true
                Layout.topMargin: Theme.spacing
                columns: root.alert && root.alert.actionTitles.length > 2 ? 1 : 2
                columnSpacing: Theme.spacing
                rowSpacing: Theme.spacing
                Repeater {
                    model: root.alert ? root.alert.actionTitles : []
                    delegate: Button {
                        required property string modelData
                        Layout.fillWidth: true
                        objectName: "alertButton_" + modelData
                        text: modelData
                        flat: root.alert !== null && modelData === root.alert.cancelTitle
                        highlighted: !flat
                        enabled: root.alert !== null && !root.alert.disabledActionTitles.includes(modelData)
                        font.family: Theme.titleFont
                        font.weight: Font.Medium
                        onClicked: root.alert.trigger(modelData)
                    }
                }
            }
        }
    }
}
