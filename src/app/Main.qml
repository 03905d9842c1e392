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
        function onPushed(vc, animated) {
            const view = root.viewFor(vc)
            if (view)
                stack.push(view, animated ? StackView.PushTransition : StackView.Immediate)
        }
        function onPopped(newDepth, animated) {
            while (stack.depth > newDepth && stack.depth > 1)
                stack.pop(animated ? StackView.PopTransition : StackView.Immediate)
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
