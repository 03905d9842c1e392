pragma Singleton
import QtQuick

/** Colours, fonts and spacing of the whole application. */
QtObject {
    readonly property color accent: "#E05863"
    readonly property color accentDark: "#C2434E"
    readonly property color accentSoft: "#FBE3E5"
    readonly property color background: "#F7F5F6"
    readonly property color surface: "#FFFFFF"
    readonly property color text: "#1F1A1C"
    readonly property color textMuted: "#857A7E"
    readonly property color separator: "#EBE4E6"
    readonly property color textOnAccent: "#FFFFFF"
    readonly property color scrim: "#80000000"
    /** Around the editor's canvas. */
    readonly property color workspace: "#EFEAEC"
    /** Behind a picture shown on its own, as on the crop screen. */
    readonly property color darkroom: "#141113"
    /** A row laid on the scrim, such as a layer of the layer panel. */
    readonly property color rowOnScrim: "#26FFFFFF"

    readonly property string titleFont: "Rubik"
    readonly property string bodyFont: "Montserrat"

    readonly property int spacing: 8
    readonly property int margin: 16
    readonly property int radius: 14
    readonly property int barHeight: 56
    readonly property int tabHeight: 48
    readonly property int toolBarHeight: 72
    readonly property int iconSize: 24
    /** The least size of something to be touched, such as a handle of the crop box. */
    readonly property int touchTarget: 44

    readonly property int fontSmall: 12
    readonly property int fontBody: 14
    readonly property int fontTitle: 18
    readonly property int fontHeadline: 26
}
