import QtQuick

/** Shows a controller's own view inside another view (a home tab, an embedded grid); empty while there is none. */
Loader {
    id: root

    property var screen: null
    property var shown: null

    function show() {
        if (root.shown === root.screen)
            return
        root.shown = root.screen
        if (root.screen)
            root.setSource(root.screen.viewUrl, { vc: root.screen })
        else
            root.source = ""
    }

    onScreenChanged: root.show()
    Component.onCompleted: root.show()
}
