import QtQuick
import QtQuick.Layouts
import Ombrivane

// The scrolling content of a page, at most as wide as reads well. What has the focus stays in view.
Flickable {
    id: area

    default property alias content: column.data

    function reveal(item: Item) {
        const place = item.mapToItem(column, 0, 0).y + column.y
        if (place < contentY) contentY = Math.max(0, place - Theme.gap)
        else if (place + item.height > contentY + height) contentY = place + item.height - height + Theme.gap
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

    contentHeight: column.implicitHeight + 2 * Theme.margin
    clip: true

    Connections {
        target: area.Window.window
        function onActiveFocusItemChanged() {
            const focused = area.Window.activeFocusItem
            for (let item = focused; item !== null; item = item.parent) {
                if (item === column) return area.reveal(focused)
            }
        }
    }
    ColumnLayout {
        id: column
        x: (area.width - width) / 2
        y: Theme.margin / 2
        width: Math.max(0, Math.min(area.width - 2 * Theme.margin, Theme.contentWidth))
        spacing: Theme.gap
    }
}
