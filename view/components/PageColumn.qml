import QtQuick
import QtQuick.Layouts
import Ombrivane

// The scrolling content of a page, at most as wide as reads well.
Flickable {
    id: area

    default property alias content: column.data

    contentHeight: column.implicitHeight + 2 * Theme.margin
    clip: true

    ColumnLayout {
        id: column
        x: (area.width - width) / 2
        y: Theme.margin / 2
        width: Math.min(area.width - 2 * Theme.margin, Theme.contentWidth)
        spacing: Theme.gap
    }
}
