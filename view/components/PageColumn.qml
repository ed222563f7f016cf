import QtQuick
import QtQuick.Layouts
import Ombrivane

// The scrolling content of a page, at most as wide as reads well. What has the focus stays in view.
Flickable {
    id: area

    default property alias content: column.data

    // The height of a header that lies over the column and, where it is a tall one, scrolls away with it.
    property real inset: 0
    readonly property real covered: inset > Theme.tallHeader ? 0 : inset

    // What lies over its lower end for a while.
    property real footCover: 0

    function reveal(item: Item) {
        const place = item.mapToItem(column, 0, 0).y + column.y
        if (place < contentY + covered + Math.max(0, inset - covered - contentY)) contentY = Math.max(0, place - covered - Theme.gap)
        else if (place + item.height > contentY + height - footCover) contentY = place + item.height - height + footCover + Theme.gap
    }
    function isMissing(item: Item): bool {
        const field = item as FormField
        const button = item as FieldButton
        const tile = item as DocumentTile
        return field !== null && field.missing || button !== null && button.missing || tile !== null && tile.missing
    }
    function showFirstMissing() {
        for (let i = 0; i < column.children.length; ++i) {
            const item = column.children[i] as Item
            if (item === null || !item.visible || !isMissing(item)) continue
            item.forceActiveFocus(Qt.OtherFocusReason)
            return
        }
    }

    contentHeight: inset + column.implicitHeight + 2 * Theme.margin + footCover
    clip: true

    function revealFocus() {
        const focused = area.Window.activeFocusItem
        for (let item = focused; item !== null; item = item.parent) {
            if (item === column) return area.reveal(focused)
        }
    }
    // A field that grows, or a message that comes, may cover it.
    onContentHeightChanged: if (!moving) reveals.restart()
    Timer {
        id: reveals
        interval: 0
        onTriggered: area.revealFocus()
    }
    Connections {
        target: area.Window.window
        function onActiveFocusItemChanged() { area.revealFocus() }
    }
    ColumnLayout {
        id: column
        x: (area.width - width) / 2
        y: area.inset + Theme.margin / 2
        width: Math.max(0, Math.min(area.width - 2 * Theme.margin, Theme.contentWidth))
        spacing: Theme.gap
    }
}
