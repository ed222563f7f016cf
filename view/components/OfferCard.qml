pragma ComponentBehavior: Bound
import QtQuick
import Ombrivane.Private

// One offer: a tap chooses it and unfolds its segments, another takes both back.
ListEntry {
    id: card

    required property OfferAdapter row
    readonly property bool awaited: row.isPlaceholder

    objectName: "offer"
    implicitHeight: column.implicitHeight + 2 * Theme.gap
    isChoice: true
    marked: row.isChosen
    enabled: row.tapEnabled
    Accessible.name: row.label
    Accessible.description: row.detailsText
    Accessible.ignored: awaited
    onClicked: row.tap()

    background: Rectangle {
        radius: Theme.cardRadius
        color: Theme.whiteColor
        border.width: card.row.isChosen ? 2 : 1
        border.color: card.row.isChosen ? Theme.secondaryColor : Theme.hairlineColor
    }
    contentItem: Shimmer {
        running: card.awaited
        Column {
            id: column
            x: Theme.margin
            y: Theme.gap
            width: parent.width - 2 * Theme.margin
            spacing: Theme.gap
            Repeater {
                id: journeys
                model: card.row.journeyCount
                OfferJourney {
                    required property int index
                    width: column.width
                    journey: index === 0 ? card.row.outbound : card.row.inbound
                    unfolded: card.row.isUnfolded
                    price: index === 0 ? card.row.price : ""
                    travellers: index === 0 ? card.row.travellersText : ""
                    detailsText: index === journeys.count - 1 ? card.row.detailsText : ""
                }
            }
            Repeater {
                model: card.row.isUnfolded ? card.row.journeyCount : 0
                OfferSegments {
                    required property int index
                    width: column.width
                    journey: index === 0 ? card.row.outbound : card.row.inbound
                }
            }
        }
    }
    Rectangle {
        visible: card.row.isChosen
        anchors { horizontalCenter: parent.right; horizontalCenterOffset: -18; verticalCenter: parent.top }
        width: 24
        height: 24
        radius: 12
        color: Theme.secondaryColor
        Icon { anchors.centerIn: parent; width: 16; height: 16; name: "checkIcon"; color: Theme.secondaryTextColor }
    }
}
