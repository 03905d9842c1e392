import QtQuick
import QtQuick.Controls
import Qt.labs.lottieqt
import Quillet.Ui

/** The launch screen: four columns of designs drift by while the logo animates once. */
Page {
    id: root
    required property var vc
    readonly property real square: Math.min(width, height) * 0.5

    background: Rectangle {
        gradient: Gradient {
            GradientStop { position: 0; color: Theme.accent }
            GradientStop { position: 1; color: Theme.accentDark }
        }
    }

    Row {
        id: columns
        anchors.centerIn: parent
        spacing: 12
        rotation: -12
        opacity: 0.45
        Repeater {
            model: 4
            delegate: Column {
                id: column
                required property int index
                spacing: 12
                property real shift: 0
                y: shift - 120
                Repeater {
                    model: root.vc.columnPictures.slice(column.index * 4, column.index * 4 + 4)
                    delegate: SampleCard {
                        required property string modelData
                        name: modelData
                        width: root.width / 3.4
                        height: width * 16 / 9
                    }
                }
                SequentialAnimation on shift {
                    loops: Animation.Infinite
                    NumberAnimation {
                        to: column.index % 2 ? 90 : -90
                        duration: 1000
                        easing.type: Easing.InOutQuad
                    }
                    NumberAnimation {
                        to: 0
                        duration: 1000
                        easing.type: Easing.InOutQuad
                    }
                }
            }
        }
    }

    Item {
        id: logoSquare
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -root.square * 0.35
        width: root.square
        height: root.square

        Rectangle {
            objectName: "animated_bg_effect"
            anchors.fill: parent
            radius: width / 2
            gradient: Gradient {
                GradientStop { position: 0; color: "#55FFFFFF" }
                GradientStop { position: 1; color: "#10FFFFFF" }
            }
        }
        LottieAnimation {
            id: logo
            objectName: "logo_dat"
            anchors.centerIn: parent
            width: parent.height * 0.63
            height: width
            source: "qrc:/Quillet/App/assets/logo_dat.json"
            loops: 1
            autoPlay: true
            onFinished: root.vc.animationCompleted()
            onStatusChanged: {
                if (status === LottieAnimation.Error)
                    root.vc.animationCancelled()
            }
        }
    }

    Label {
        anchors.top: logoSquare.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        text: root.vc.logoLetter
        color: Theme.textOnAccent
        font.family: Theme.titleFont
        font.weight: Font.Medium
        font.pixelSize: root.square * 0.77
        horizontalAlignment: Text.AlignHCenter
    }
    Label {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.margin * 3
        anchors.horizontalCenter: parent.horizontalCenter
        text: qsTr("Stories, made beautiful")
        color: Theme.textOnAccent
        opacity: 0.85
        font.family: Theme.bodyFont
        font.weight: Font.Medium
        font.pixelSize: Theme.fontBody
    }
}
