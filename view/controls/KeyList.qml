import QtQuick
import Ombrivane.Private

// A list that is one stop of the Tab key: arrow keys go from row to row, Page Up and Page Down by what is in sight, Home
// and End to the first and the last. Only its current row takes the focus: `focusPolicy` of a row asks `isCurrentItem`.
ListView {
    id: list

    // What lies over its ends, in points.
    property real coveredTop: 0
    property real coveredBottom: 0
    readonly property bool lies: orientation === ListView.Horizontal
    readonly property int inSight: {
        const room = lies ? width : height - coveredTop - coveredBottom
        return Math.max(1, Math.floor(room * count / Math.max(1, lies ? contentWidth : contentHeight)))
    }

    function goTo(index: int) {
        if (count === 0) return
        currentIndex = Math.max(0, Math.min(count - 1, index))
        positionViewAtIndex(currentIndex, ListView.Contain)
        if (currentItem !== null) currentItem.forceActiveFocus(Qt.TabFocusReason)
    }

    highlightFollowsCurrentItem: false
    keyNavigationEnabled: false
    // Other rows start at the first.
    onCountChanged: if (!activeFocus && currentIndex !== 0) currentIndex = 0
    Accessible.role: Accessible.List
    Keys.onPressed: event => {
        const forward = lies ? (Words.rightToLeft ? Qt.Key_Left : Qt.Key_Right) : Qt.Key_Down
        const backward = lies ? (Words.rightToLeft ? Qt.Key_Right : Qt.Key_Left) : Qt.Key_Up
        const rows = {[forward]: currentIndex + 1, [backward]: currentIndex - 1, [Qt.Key_PageDown]: currentIndex + inSight,
                      [Qt.Key_PageUp]: currentIndex - inSight, [Qt.Key_Home]: 0, [Qt.Key_End]: count - 1}
        event.accepted = event.key in rows
        if (event.accepted) goTo(rows[event.key])
    }
}
