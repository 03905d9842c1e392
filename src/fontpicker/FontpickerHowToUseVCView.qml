pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls

/** "How To Use Fonts": the two pictures, one under the other. */
Page {
    id: root

    required property var vc

    title: root.vc.title

    ListView {
        anchors.fill: parent
        model: root.vc.images
        delegate: Image {
            required property string modelData
            width: ListView.view.width
            fillMode: Image.PreserveAspectFit
            source: "image://assets/" + modelData
        }
    }
}
