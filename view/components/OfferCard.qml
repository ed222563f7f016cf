pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Ombrivane

// One offer: a tap chooses it and unfolds its segments, another takes both back.
T.AbstractButton {
    id: card

    required property OfferAdapter row

    objectName: "offer"
    implicitHeight: column.implicitHeight + 2 * Theme.gap
    enabled: row.tapEnabled
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.CheckBox
    Accessible.name: row.label
    Accessible.description: row.detailsText
    Accessible.checkable: true
    Accessible.checked: row.isChosen
    onClicked: row.tap()
    Keys.onReturnPressed: card.clicked()
    Keys.onEnterPressed: card.clicked()

    background: Rectangle {
        radius: Theme.cardRadius
        color: Theme.whiteColor
        border.width: card.row.isChosen ? 2 : 1
        border.color: card.row.isChosen ? Theme.secondaryColor : Theme.hairlineColor
        Rectangle {
            anchors.fill: parent
            anchors.margins: -3
            visible: card.visualFocus
            radius: Theme.cardRadius + 3
            color: "transparent"
            border.width: 2
            border.color: Theme.secondaryColor
        }
    }
    contentItem: Shimmer {
        running: card.row.isPlaceholder
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
