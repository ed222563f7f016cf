import QtQuick
import Ombrivane.Private

// The choice of the travel dates, for one way and for a round trip: six months under the fixed names of the days.
FocusScope {
    id: page

    required property CalendarAdapter screen

    focus: true

    readonly property real gridWidth: Math.min(width - 12, Theme.contentWidth)
    readonly property real cellWidth: Math.floor(gridWidth / 7)
    readonly property real cellHeight: Math.max(46, 30 * Theme.textScale)

    // The month of the day that the keys stand on is drawn before the day is asked for.
    function showCursor() {
        if (list.itemAtIndex(cursor.month) === null) list.positionViewAtIndex(cursor.month, ListView.Contain)
        list.forceLayout()
        const month = list.itemAtIndex(cursor.month) as MonthGrid
        if (month !== null) month.cellAt(cursor.day).forceActiveFocus(Qt.TabFocusReason)
    }

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
    DayCursor {
        id: cursor
        calendar: page.screen
        onMoved: if (list.activeFocus) page.showCursor()
    }
    ListView {
        id: list
        objectName: "months"
        anchors { top: line.bottom; bottom: foot.top; horizontalCenter: parent.horizontalCenter }
        width: page.cellWidth * 7
        topMargin: Theme.gap
        clip: true
        cacheBuffer: 0 // rows are made when drawn, not while the page may be leaving
        keyNavigationEnabled: false
        highlightFollowsCurrentItem: false
        focus: true
        model: page.screen.months
        delegate: MonthGrid {
            cellWidth: page.cellWidth
            cellHeight: page.cellHeight
            dayAtKeys: cursor.day
            onTapped: day => {
                cursor.moveTo(day)
                page.screen.tapDay(day)
            }
        }
        Accessible.role: Accessible.List
        Accessible.name: page.screen.title
        Keys.onPressed: event => {
            const ahead = Words.rightToLeft ? -1 : 1
            const days = {[Qt.Key_Right]: ahead, [Qt.Key_Left]: -ahead, [Qt.Key_Down]: 7, [Qt.Key_Up]: -7, [Qt.Key_Home]: -999, [Qt.Key_End]: 999}
            const months = {[Qt.Key_PageUp]: -1, [Qt.Key_PageDown]: 1}
            event.accepted = event.key in days || event.key in months
            if (event.key in days) cursor.moveBy(days[event.key])
            else if (event.accepted) cursor.moveByMonths(months[event.key])
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
