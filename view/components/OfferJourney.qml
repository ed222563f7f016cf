import QtQuick
import Ombrivane

// One journey of an offer card: airline and price, times around the plane on its line, places, what is included.
// Placed by hand: a card is laid out anew for each row that comes into view, and layouts would be most of that.
Column {
    id: item

    required property JourneyAdapter journey
    // Aliases, since a text that QML itself keeps is a copy for its engine to collect.
    property alias price: cost.text
    property alias detailsText: detailsLabel.text
    property bool unfolded: false
    readonly property bool narrow: width < 270 * Theme.textScale
    readonly property real half: (width - 8) / 2

    spacing: 8

    Item {
        width: item.width
        height: Math.ceil(item.narrow ? airline.height + (cost.visible ? 4 + cost.height : 0) : Math.max(airline.height, cost.visible ? cost.height : 0))
        Item {
            id: airline
            anchors.left: parent.left
            y: item.narrow ? 0 : Math.round((parent.height - height) / 2)
            width: parent.width - (item.narrow || !cost.visible ? 0 : cost.width + 8)
            height: Math.max(logo.height, name.height)
            Logo {
                id: logo
                anchors.left: parent.left
                y: Math.round((parent.height - height) / 2)
                width: implicitWidth
                height: implicitHeight
                url: item.journey.carrierLogo
            }
            CardText {
                id: name
                anchors { left: logo.right; leftMargin: 8 }
                y: Math.round((parent.height - height) / 2)
                width: parent.width - logo.width - 8
                text: item.journey.carrierName
                font.weight: Font.Medium
            }
        }
        CardText {
            id: cost
            anchors.left: item.narrow ? parent.left : undefined
            anchors.right: item.narrow ? undefined : parent.right
            y: item.narrow ? airline.height + 4 : Math.round((parent.height - height) / 2)
            visible: text !== ""
            width: Math.ceil(implicitWidth)
            horizontalAlignment: item.narrow ? Text.AlignLeft : Text.AlignRight
            wrapMode: Text.NoWrap
            color: Theme.blackColor
            font.pixelSize: Theme.priceSize
            font.weight: Font.DemiBold
        }
    }
    CardText {
        x: Math.round((item.width - width) / 2)
        visible: item.narrow
        text: visible ? item.journey.duration : ""
        color: Theme.placeHolderColor
        font.pixelSize: Theme.captionSize
    }
    Item {
        width: item.width
        height: Math.ceil(Math.max(departure.height, flight.height, arrival.height))
        CardText {
            id: departure
            anchors.left: parent.left
            y: Math.round((parent.height - height) / 2)
            width: Math.ceil(implicitWidth)
            wrapMode: Text.NoWrap
            text: item.journey.departureTime
            font.pixelSize: Theme.timeSize
            font.weight: Font.Medium
        }
        Column {
            id: flight
            anchors { left: departure.right; leftMargin: 8; right: arrival.left; rightMargin: 8 }
            y: Math.round((parent.height - height) / 2)
            CardText {
                visible: !item.narrow
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: visible ? item.journey.duration : ""
                color: Theme.placeHolderColor
                font.pixelSize: Theme.captionSize
            }
            PlaneLine {
                x: Math.round((parent.width - width) / 2)
                width: Math.min(parent.width, implicitWidth)
                height: implicitHeight
                lineImage: item.journey.lineImage
            }
        }
        CardText {
            id: arrival
            anchors.right: parent.right
            y: Math.round((parent.height - height) / 2)
            width: Math.ceil(implicitWidth)
            wrapMode: Text.NoWrap
            text: item.journey.arrivalTime
            font.pixelSize: Theme.timeSize
            font.weight: Font.Medium
        }
    }
    Item {
        width: item.width
        height: Math.ceil(Math.max(origin.height, destination.height))
        Column {
            id: origin
            anchors.left: parent.left
            y: Math.round((parent.height - height) / 2)
            width: item.half
            CardText { width: item.half; text: item.journey.departureLocation; font.weight: Font.Medium }
            CardText {
                width: item.half
                text: item.journey.departureDate
                color: Theme.placeHolderColor
                font.pixelSize: Theme.captionSize
            }
        }
        Column {
            id: destination
            anchors.right: parent.right
            y: Math.round((parent.height - height) / 2)
            width: item.half
            CardText {
                width: item.half
                horizontalAlignment: Text.AlignRight
                text: item.journey.arrivalLocation
                font.weight: Font.Medium
            }
            CardText {
                width: item.half
                horizontalAlignment: Text.AlignRight
                text: item.journey.arrivalDate
                color: Theme.placeHolderColor
                font.pixelSize: Theme.captionSize
            }
        }
    }
    Item {
        width: item.width
        height: 3
        Rectangle { y: 2; width: parent.width; height: 1; color: Theme.hairlineColor }
    }
    Item {
        width: item.width
        height: Math.ceil(item.narrow ? included.height + (details.visible ? 4 + details.height : 0) : Math.max(included.height, details.visible ? details.height : 0))
        Flow {
            id: included
            anchors.left: parent.left
            y: item.narrow ? 0 : Math.round((parent.height - height) / 2)
            width: parent.width - (item.narrow || !details.visible ? 0 : details.width + 8)
            spacing: 12
            CardText { text: item.journey.cabin; color: Theme.placeHolderColor; font.pixelSize: Theme.captionSize }
            CardText { text: item.journey.refundability; color: Theme.placeHolderColor; font.pixelSize: Theme.captionSize }
            Allowance { iconName: "handcarryIcon"; text: item.journey.cabinBaggage }
            Allowance { iconName: "brifcaseIcon"; text: item.journey.checkInBaggage }
        }
        Row {
            id: details
            visible: detailsLabel.text !== ""
            anchors.right: parent.right
            y: parent.height - height
            spacing: 2
            CardText {
                id: detailsLabel
                color: Theme.secondaryColor
                font.pixelSize: Theme.captionSize
                font.weight: Font.Medium
            }
            Icon {
                y: Math.round((parent.height - height) / 2)
                width: 20
                height: 20
                name: "showSegmentIcon"
                color: Theme.secondaryColor
                rotation: item.unfolded ? 180 : 0
            }
        }
    }
}
