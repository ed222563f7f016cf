import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// A card of a page with its title; what it holds stands one below the other, as shapes while it is awaited.
Rectangle {
    id: card

    property string title: ""
    property bool awaited: false
    default property alias content: column.data

    implicitHeight: shimmer.y + column.implicitHeight + Theme.margin
    radius: Theme.cardRadius
    color: Theme.whiteColor
    border.width: 1
    border.color: Theme.hairlineColor

    PlainText {
        id: heading
        x: Theme.margin
        y: Theme.margin
        width: Math.max(0, parent.width - 2 * x)
        visible: text !== ""
        text: card.title
        font.pixelSize: Theme.sectionSize
        font.weight: Font.Medium
        Accessible.role: Accessible.Heading
    }
    Shimmer {
        id: shimmer
        x: Theme.margin
        y: Theme.margin + (heading.visible ? Math.ceil(heading.height) + 8 : 0)
        width: Math.max(0, parent.width - 2 * x)
        height: column.implicitHeight
        running: card.awaited
        ColumnLayout {
            id: column
            width: shimmer.width
            spacing: 8
        }
    }
}
