import QtQuick
import Ombrivane.Private

// A wheel of entries of which the one in the middle is chosen: by a flick, a tap on an entry, or the arrow keys.
ListView {
    id: wheel

    required property string label
    required property int chosen
    readonly property real entryHeight: Math.max(44, 30 * Theme.textScale)
    readonly property int shownEntries: Theme.textScale > 1.3 ? 3 : 5
    signal turned(index: int)

    function turnTo(index: int) { turned(Math.max(0, Math.min(count - 1, index))) }
    function show() { currentIndex = chosen }

    implicitHeight: shownEntries * entryHeight
    clip: true
    activeFocusOnTab: true
    snapMode: ListView.SnapToItem
    highlightRangeMode: ListView.StrictlyEnforceRange
    preferredHighlightBegin: (height - entryHeight) / 2
    preferredHighlightEnd: preferredHighlightBegin + entryHeight
    highlightMoveDuration: Theme.stateDuration
    Accessible.role: Accessible.SpinBox
    Accessible.name: currentItem === null ? label : Words.fill(Words.fieldWithValue, {field: label, value: (currentItem as WheelEntry).text})
    Accessible.focusable: true
    Accessible.onIncreaseAction: turnTo(chosen + 1)
    Accessible.onDecreaseAction: turnTo(chosen - 1)

    highlight: Rectangle {
        radius: Theme.fieldRadius
        color: Theme.segmentColor
    }
    delegate: WheelEntry {
        width: wheel.width
        height: wheel.entryHeight
        chosen: index === wheel.currentIndex
        onTapped: wheel.turnTo(index)
    }
    onChosenChanged: show()
    onCountChanged: show()
    onMovementEnded: turned(currentIndex)
    Keys.onUpPressed: turnTo(chosen - 1)
    Keys.onDownPressed: turnTo(chosen + 1)
    Keys.onPressed: event => {
        const turns = {[Qt.Key_PageUp]: chosen - 10, [Qt.Key_PageDown]: chosen + 10, [Qt.Key_Home]: 0, [Qt.Key_End]: count - 1}
        event.accepted = event.key in turns
        if (event.accepted) turnTo(turns[event.key])
    }
}
