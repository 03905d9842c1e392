import QtQuick
import QtQuick.Controls
import QtQuick.Window
import Quillet.Ui

/** The one window: the navigation stack of screens, and the alert of the moment over it. */
ApplicationWindow {
    id: root
    required property var navigation

    width: 390
    height: 844
    minimumWidth: 320
    minimumHeight: 560
    visible: true
    title: "Quillet"
    color: Theme.background

    function viewFor(vc) {
        const component = Qt.createComponent(vc.viewUrl)
        if (component.status !== Component.Ready) {
            console.warn("cannot show", vc.identifier, component.errorString())
            return null
        }
        return component.createObject(null, { vc: vc })
    }

    StackView {
        id: stack
        objectName: "stack"
        anchors.fill: parent
    }

    Connections {
        target: root.navigation
        function onRootReplaced(vc) {
            const view = root.viewFor(vc)
            if (view)
                stack.replace(null, view, StackView.ReplaceTransition)
        }
        // A sheet (a view with `isSheet`) comes and goes at once, and the screen below stays in sight under it.
        function onPushed(vc, animated) {
            const view = root.viewFor(vc)
            if (!view)
                return
            const below = view.isSheet === true ? stack.currentItem : null
            if (below)
                below.StackView.visible = true
            stack.push(view, animated && !below ? StackView.PushTransition : StackView.Immediate)
            if (below) {
                below.x = 0
                below.opacity = 1
            }
        }
        function onPopped(newDepth, animated) {
            while (stack.depth > newDepth && stack.depth > 1) {
                const sheet = stack.currentItem.isSheet === true
                stack.pop(animated && !sheet ? StackView.PopTransition : StackView.Immediate)
                if (sheet)
                    stack.currentItem.StackView.visible = undefined
            }
        }
    }

    PanelOverlay {
        anchors.fill: parent
        panel: root.navigation.panel
    }

    AlertOverlay {
        anchors.fill: parent
        alert: root.navigation.alert
    }
}
