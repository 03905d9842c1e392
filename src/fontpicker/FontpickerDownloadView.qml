pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls

/** DOWNLOADED: each font of the list, its name in its own face. */
ListView {
    id: root

    property var vc

    objectName: "downloadedList"
    clip: true
    model: root.vc ? root.vc.rows : []
    delegate: ItemDelegate {
        required property var modelData
        width: ListView.view.width
        text: modelData.text
        font: modelData.font
    }
}
