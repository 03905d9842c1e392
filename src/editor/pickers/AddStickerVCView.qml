import QtQuick
import Quillet.Ui

/** "Pick your own" of the sticker pager: one row that opens the gallery. */
Item {
    id: root

    required property var vc

    OwnPictureRows {
        x: Theme.margin
        y: Theme.margin
        vc: root.vc
    }
}
