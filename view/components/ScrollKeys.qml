import QtQuick
import Ombrivane.Private

// A text to read is scrolled, not walked through: what the keys do to the area that holds it.
QtObject {
    // Where `key` leads from `at`, between `start` and `end`, with so much of the area in sight; NaN where it leads nowhere.
    function place(key: int, at: real, start: real, end: real, sight: real): real {
        const line = 3 * Theme.sectionSize
        const places = {[Qt.Key_Down]: at + line, [Qt.Key_Up]: at - line, [Qt.Key_PageDown]: at + sight - line, [Qt.Key_PageUp]: at - sight + line,
                        [Qt.Key_Space]: at + sight - line, [Qt.Key_Home]: start, [Qt.Key_End]: end}
        return key in places ? Math.max(start, Math.min(end, places[key])) : NaN
    }
}
