import QtQuick

/** "Pick your own" of the sticker pager: one row that opens the gallery. */
Item {
    id: root

    required property var vc

    OwnPictureRows {
        x: 16
        y: 16
        vc: root.vc
    }
}
