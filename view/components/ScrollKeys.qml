import QtQuick
import Ombrivane.Private

// A text to read is scrolled, not walked through: what the keys do to the area that holds it.
Item {
    id: keys

    required property Flickable area

    // Whether `key` is one of them.
    function scroll(key: int): bool {
        const end = area.originY + Math.max(0, area.contentHeight - area.height)
        const line = 3 * Theme.sectionSize
        const page = area.height - line
        const places = {[Qt.Key_Down]: area.contentY + line, [Qt.Key_Up]: area.contentY - line, [Qt.Key_PageDown]: area.contentY + page,
                        [Qt.Key_PageUp]: area.contentY - page, [Qt.Key_Space]: area.contentY + page, [Qt.Key_Home]: area.originY, [Qt.Key_End]: end}
        if (!(key in places)) return false
        area.contentY = Math.max(area.originY, Math.min(end, places[key]))
        return true
    }
}
