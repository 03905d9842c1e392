import QtQuick
import QtQuick.Controls
import Quillet.Ui

/** A bar of rows that scrolls sideways when they do not fit; a tapped row is reported by its number. */
ListView {
    id: root

    signal rowTapped(int row)

    orientation: ListView.Horizontal
    clip: true
    spacing: 2
    leftMargin: Theme.spacing / 2
    rightMargin: Theme.spacing / 2
    boundsBehavior: Flickable.StopAtBounds
    delegate: MenuCell {
        required property var modelData
        required property int index
        row: modelData
        height: ListView.view.height
        onClicked: root.rowTapped(index)
    }
}
