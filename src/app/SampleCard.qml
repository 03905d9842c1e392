import QtQuick

/** A small design drawn in place of a template picture: a gradient, a shape and a headline bar. */
Rectangle {
    id: root
    required property string name
    readonly property var palettes: [["#E05863", "#F9A8A0"], ["#4E4FB0", "#8FD3FE"], ["#F8C221", "#FF7F6B"],
        ["#2D8E2D", "#A8E6CF"], ["#631553", "#E266AF"], ["#063F7D", "#44AAB0"]]
    readonly property int seed: {
        let h = 0
        for (let i = 0; i < name.length; ++i)
            h = (h * 31 + name.charCodeAt(i)) % 9973
        return h
    }
    readonly property var palette: palettes[seed % palettes.length]

    radius: 12
    clip: true
    gradient: Gradient {
        GradientStop { position: 0; color: root.palette[0] }
        GradientStop { position: 1; color: root.palette[1] }
    }
    Rectangle {
        width: root.width * 0.62
        height: width
        radius: root.seed % 2 ? width / 2 : 10
        rotation: root.seed % 45
        x: root.width * (0.1 + (root.seed % 5) * 0.06)
        y: root.height * 0.18
        color: "#33FFFFFF"
        border.color: "#66FFFFFF"
        border.width: 2
    }
    Column {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: root.width * 0.12
        spacing: root.width * 0.05
        Rectangle { width: parent.width * 0.8; height: root.width * 0.09; radius: height / 2; color: "#F2FFFFFF" }
        Rectangle { width: parent.width * 0.55; height: root.width * 0.06; radius: height / 2; color: "#99FFFFFF" }
    }
}
