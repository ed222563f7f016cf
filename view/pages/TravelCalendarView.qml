import QtQuick
import Ombrivane

// The choice of the travel dates, for one way and for a round trip: six months under the fixed names of the days.
FocusScope {
    id: page

    required property CalendarAdapter screen

    focus: true

    readonly property real gridWidth: Math.min(width - 12, Theme.contentWidth)
    readonly property real cellWidth: Math.floor(gridWidth / 7)
    readonly property real cellHeight: Math.max(46, 30 * Theme.textScale)

    Rectangle { anchors.fill: parent; color: Theme.canvasColor }
    PageHeader {
        id: header
        width: parent.width
        iconName: "crossIcon"
        leaveLabel: Words.close
        title: page.screen.title
        onLeave: page.screen.close()
    }
    Row {
        id: names
        anchors { top: header.bottom; horizontalCenter: parent.horizontalCenter }
        Repeater {
            model: page.screen.dayNames
            PlainText {
                required property string modelData
                width: page.cellWidth
                height: implicitHeight + 8
                text: modelData
                color: Theme.placeHolderColor
                font.pixelSize: Theme.captionSize
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.NoWrap
            }
        }
    }
    Rectangle {
        id: line
        anchors { top: names.bottom; left: parent.left; right: parent.right }
        height: 1
        color: Theme.hairlineColor
    }
    ListView {
        id: list
        objectName: "months"
        anchors { top: line.bottom; bottom: foot.top; horizontalCenter: parent.horizontalCenter }
        width: page.cellWidth * 7
        topMargin: Theme.gap
        clip: true
        cacheBuffer: 0 // rows are made when drawn, not while the page may be leaving
        model: page.screen.months
        delegate: MonthGrid {
            cellWidth: page.cellWidth
            cellHeight: page.cellHeight
            onTapped: day => page.screen.tapDay(day)
        }
        Component.onCompleted: positionViewAtIndex(page.screen.scrollToIndex, ListView.Beginning)
    }
    Connections {
        target: page.screen
        function onScrollToIndexChanged() { list.positionViewAtIndex(page.screen.scrollToIndex, ListView.Beginning) }
    }
    FootBar {
        id: foot
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        iconName: "departureIcon"
        value: page.screen.chosenText
        action: Words.done
        onClicked: page.screen.done()
    }
    Keys.onEscapePressed: page.screen.close()
}
