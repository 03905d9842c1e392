import QtQuick

/** The grid of one catalog, embedded under its catalog strip. */
Item {
    id: root

    required property var vc

    CardGrid {
        anchors.fill: parent
        vc: root.vc
    }
}
