import QtQuick
import QtQuick.Layouts
import Ombrivane

// A card of a page with its title; what it holds stands one below the other.
Rectangle {
    id: card

    property string title: ""
    default property alias content: column.data

    implicitHeight: column.implicitHeight + 2 * Theme.margin
    radius: Theme.cardRadius
    color: Theme.whiteColor
    border.width: 1
    border.color: Theme.hairlineColor

    ColumnLayout {
        id: column
        x: Theme.margin
        y: Theme.margin
        width: parent.width - 2 * Theme.margin
        spacing: 8
        PlainText {
            Layout.fillWidth: true
            visible: card.title !== ""
            text: card.title
            font.pixelSize: Theme.sectionSize
            font.weight: Font.Medium
            Accessible.role: Accessible.Heading
        }
    }
}
