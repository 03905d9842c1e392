import QtQuick

/** A row of an own-picture page: its icon on a tile and its word, such as "Gallery" or "Camera". */
BgIcon {
    id: root

    required property string title
    required property string image

    implicitWidth: 96
    implicitHeight: 116
    text: root.title
    asset: root.image
}
