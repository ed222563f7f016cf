import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// An airline with a price, which leads to its offer in the list below.
ListEntry {
    id: card

    required property OfferCardAdapter row
    property bool awaited: false

    objectName: "stripCard"
    implicitWidth: line.implicitWidth + 24
    implicitHeight: Math.max(Theme.target, line.implicitHeight + 20)
    enabled: !awaited
    Accessible.ignored: awaited
    Accessible.name: row.carrierName + ", " + row.price
    onClicked: row.tap()

    background: Rectangle {
        radius: Theme.fieldRadius
        color: card.down ? Theme.segmentColor : Theme.whiteColor
        border.width: 1
        border.color: Theme.hairlineColor
    }
    contentItem: Shimmer {
        running: card.awaited
        RowLayout {
            id: line
            x: 12
            height: parent.height
            spacing: 8
            Logo { url: card.row.carrierLogo }
            Column {
                CardText { text: card.row.carrierName; font.pixelSize: Theme.captionSize; wrapMode: Text.NoWrap }
                CardText {
                    text: card.row.price
                    color: Theme.blackColor
                    font.weight: Font.Medium
                    wrapMode: Text.NoWrap
                }
            }
        }
    }
}
