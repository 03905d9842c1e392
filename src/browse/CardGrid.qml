pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Window
import Quillet.Ui

/**
 * The two-column grid of cards that every card grid shows, with its footer refresh, its go-to-top button
 * and its states. The controller decides everything; this file binds and lays out.
 */
Item {
    id: root

    required property var vc
    readonly property bool wide: Math.min(Screen.width, Screen.height) >= 600 && Math.min(width, height) >= 600
    readonly property size card: root.vc ? root.vc.cardSize(Window.width > 0 ? Window.width : width,
                                                            Window.height > 0 ? Window.height : height)
                                         : Qt.size(0, 0)
    readonly property real gap: 10

    Binding {
        target: root.vc
        property: "isPad"
        value: root.wide
    }

    GridView {
        id: grid
        objectName: "cardGrid"
        anchors.fill: parent
        // Each cell holds half the spacing on every side of its card.
        leftMargin: root.gap / 2
        rightMargin: root.gap / 2
        topMargin: root.gap / 2
        bottomMargin: root.gap / 2
        cellWidth: root.card.width + root.gap
        cellHeight: root.card.height + root.gap
        cacheBuffer: Math.max(0, root.card.height * 2)
        reuseItems: true
        boundsBehavior: Flickable.DragAndOvershootBounds
        model: root.vc ? root.vc.items : null

        property int firstRow: -1
        property int lastRow: -1
        property bool drawn: false
        property int picturesShown: 0
        readonly property int firstScreenCards: Math.min(count, 2 * Math.ceil((height - topMargin) / cellHeight))

        delegate: TemplateCard {
            width: grid.cellWidth
            height: grid.cellHeight
            padding: root.gap / 2
            pictureSize: Qt.size(Math.round(root.card.width * Screen.devicePixelRatio),
                                 Math.round(root.card.height * Screen.devicePixelRatio))
            onTapped: root.vc.didSelectItem(index)
            onPictureShownChanged: {
                if (pictureShown && index < grid.firstScreenCards)
                    ++grid.picturesShown
            }
        }

        // A row that comes into view tells the controller of its cells: the last one of a new bottom row, the
        // first one of a new top row. Worked out from the layout, as a jump leaves no delegates there yet.
        function rowAt(y) {
            return Math.floor((Math.max(originY, Math.min(originY + contentHeight - 1, y)) - originY) / cellHeight)
        }
        function showRows() {
            if (count === 0 || !root.vc)
                return
            const columns = Math.max(1, Math.floor((width - leftMargin - rightMargin) / cellWidth))
            const first = rowAt(contentY)
            const last = rowAt(contentY + height - 1)
            if (last > lastRow)
                root.vc.willDisplayCell(Math.min(count - 1, last * columns + columns - 1))
            else if (first < firstRow)
                root.vc.willDisplayCell(first * columns)
            firstRow = first
            lastRow = last
        }
        onContentYChanged: showRows()
        onAtYEndChanged: {
            if (atYEnd && count > 0 && root.vc)
                root.vc.footerRefresh()
        }
    }

    // The first frame that shows the first screen of cards with their pictures.
    Connections {
        target: root.Window.window
        enabled: !grid.drawn && grid.count > 0 && grid.picturesShown >= grid.firstScreenCards
        function onFrameSwapped() {
            grid.drawn = true
            root.vc.gridShown()
        }
    }

    // The footer refresh at work.
    BusyIndicator {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.spacing
        running: root.vc ? root.vc.isRefreshing : false
        visible: running
    }

    RoundButton {
        objectName: "goToTopButton"
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: Theme.margin
        visible: root.vc ? root.vc.goToTopVisible : false
        icon.source: "image://assets/ic_top"
        icon.color: Theme.textOnAccent
        highlighted: true
        onClicked: grid.positionViewAtBeginning()
    }

    StateLabel {
        anchors.fill: parent
        text: root.vc ? root.vc.stateText : ""
        retryVisible: root.vc ? root.vc.retryVisible : false
        onRetryClicked: root.vc.retry()
    }
}
