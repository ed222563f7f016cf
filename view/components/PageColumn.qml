import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// The scrolling content of a page, at most as wide as reads well. What has the focus stays in view.
Flickable {
    id: area

    default property alias content: column.data

    // The height of a header that lies over the column and, where it is a tall one, scrolls away with it.
    property real inset: 0
    readonly property real covered: inset > Theme.tallHeader || parent !== null && parent.height < 300 ? 0 : inset

    // Something to read: one stop of the Tab key where it is longer than the page.
    property bool isRead: false

    // What lies over its lower end for a while.
    property real footCover: 0

    function reveal(item: Item) {
        const place = item.mapToItem(column, 0, 0).y + column.y
        if (place < contentY + covered + Math.max(0, inset - covered - contentY)) contentY = Math.max(0, place - covered - Theme.gap)
        else if (place + item.height > contentY + height - footCover) contentY = place + item.height - height + footCover + Theme.gap
    }
    // The first button below a field, null for none.
    function buttonAfter(field: Item): MainButton {
        for (let i = 0, passed = false; i < column.children.length; ++i) {
            const button = column.children[i] as MainButton
            if (passed && button !== null && button.visible) return button
            if (column.children[i] === field) passed = true
        }
        return null
    }
    // A field with its button; false where there is no room for both.
    function revealBoth(field: Item, button: MainButton): bool {
        const from = column.y + field.y
        const to = column.y + button.y + button.height
        const spare = Math.min(Theme.gap, (height - covered - footCover - (to - from)) / 2)
        if (spare < 0) return false
        contentY = Math.max(to + spare + footCover - height, Math.min(contentY, Math.max(0, from - spare - covered)))
        return true
    }
    function isMissing(item: Item): bool {
        const field = item as CustomTextFieldView
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
    activeFocusOnTab: isRead && contentHeight > height
    Keys.onPressed: event => {
        const place = keys.place(event.key, contentY, 0, Math.max(0, contentHeight - height), height)
        event.accepted = isRead && !isNaN(place)
        if (event.accepted) contentY = place
    }
    ScrollKeys { id: keys }

    function revealFocus() {
        const focused = area.Window.activeFocusItem
        for (let item = focused; item !== null; item = item.parent) {
            if (item.parent !== column) continue
            const button = Theme.keyboardHeight > 0 ? area.buttonAfter(item) : null
            if (button === null || !area.revealBoth(item, button)) area.reveal(focused)
            return
        }
    }
    // A field that grows, a message or a keyboard that comes, may cover it.
    onContentHeightChanged: if (!moving) reveals.restart()
    onHeightChanged: if (!moving) reveals.restart()
    Delay {
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
