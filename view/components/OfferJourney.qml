import QtQuick
import Ombrivane.Private

// One journey of an offer card: airline and price, times around the plane on its line, dates, what is included.
// Placed by hand: a card is laid out anew for each row that comes into view, and layouts would be most of that.
Column {
    id: item

    required property JourneyAdapter journey
    // Aliases, since a text that QML itself keeps is a copy for its engine to collect.
    property alias price: cost.text
    property alias travellers: count.text
    property alias detailsText: detailsLabel.text
    property bool unfolded: false
    readonly property bool narrow: width < 250 * Theme.textScale

    spacing: 6

    Item {
        width: item.width
        height: Math.ceil(item.narrow ? airline.height + (fare.visible ? 4 + fare.height : 0) : Math.max(airline.height, fare.visible ? fare.height : 0))
        Item {
            id: airline
            anchors.left: parent.left
            width: parent.width - (item.narrow || !fare.visible ? 0 : fare.width + 8)
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
        Item {
            id: fare
            anchors.left: item.narrow ? parent.left : undefined
            anchors.right: item.narrow ? undefined : parent.right
            y: item.narrow ? airline.height + 4 : 0
            visible: cost.text !== ""
            width: Math.max(cost.width, count.visible ? count.width : 0)
            height: cost.height + (count.visible ? count.height : 0)
            CardText {
                id: cost
                objectName: "price"
                anchors.left: item.narrow ? parent.left : undefined
                anchors.right: item.narrow ? undefined : parent.right
                width: Math.ceil(implicitWidth)
                wrapMode: Text.NoWrap
                font.pixelSize: Theme.priceSize
                font.weight: Font.DemiBold
            }
            CardText {
                id: count
                anchors.left: item.narrow ? parent.left : undefined
                anchors.right: item.narrow ? undefined : parent.right
                y: cost.height
                visible: text !== ""
                width: Math.min(Math.ceil(implicitWidth), item.narrow ? item.width : item.width / 2)
                horizontalAlignment: item.narrow ? Text.AlignLeft : Text.AlignRight
                color: Theme.placeHolderColor
                font.pixelSize: Theme.smallSize
            }
        }
    }
    Item {
        id: times
        width: item.width
        height: Math.ceil(item.narrow ? arrivalDate.y + arrivalDate.height : departureDate.y + Math.max(departureDate.height, arrivalDate.height))
        // A duration is never parted: where it is wider than what the times leave, it stands above these.
        readonly property bool wideDuration: !item.narrow && duration.implicitWidth > flight.width
        readonly property real line: Math.max(departure.height + (wideDuration ? duration.height : 0), flight.height)
        FlightTime {
            id: departure
            anchors.left: parent.left
            y: item.narrow ? 0 : times.line - height
            time: item.journey.departureTime
            place: item.journey.departureLocation
        }
        CardText {
            id: departureDate
            anchors.left: parent.left
            y: item.narrow ? departure.height : times.line
            width: item.narrow ? parent.width : (parent.width - 8) / 2
            text: item.journey.departureDate
            color: Theme.placeHolderColor
            font.pixelSize: Theme.captionSize
        }
        Column {
            id: flight
            anchors { left: item.narrow ? parent.left : departure.right; leftMargin: item.narrow ? 0 : 10; right: item.narrow ? parent.right : arrival.left; rightMargin: item.narrow ? 0 : 10 }
            y: item.narrow ? departureDate.y + departureDate.height + 4 : times.wideDuration ? 0 : times.line - height
            CardText {
                id: duration
                objectName: "duration"
                x: Math.round((parent.width - width) / 2)
                width: Math.min(item.width, Math.max(parent.width, Math.ceil(implicitWidth)))
                horizontalAlignment: Text.AlignHCenter
                text: item.journey.duration
                color: Theme.placeHolderColor
                font.pixelSize: Theme.smallSize
            }
            PlaneLine {
                x: Math.round((parent.width - width) / 2)
                width: Math.min(parent.width, implicitWidth)
                height: implicitHeight
                lineImage: item.journey.lineImage
                connections: item.journey.connections
            }
        }
        FlightTime {
            id: arrival
            anchors.left: item.narrow ? parent.left : undefined
            anchors.right: item.narrow ? undefined : parent.right
            y: item.narrow ? flight.y + flight.height + 4 : times.line - height
            placeFirst: !item.narrow
            time: item.journey.arrivalTime
            place: item.journey.arrivalLocation
            days: item.journey.arrivalDays
        }
        CardText {
            id: arrivalDate
            anchors.left: item.narrow ? parent.left : undefined
            anchors.right: item.narrow ? undefined : parent.right
            y: item.narrow ? arrival.y + arrival.height : times.line
            width: item.narrow ? parent.width : (parent.width - 8) / 2
            horizontalAlignment: item.narrow ? Text.AlignLeft : Text.AlignRight
            text: item.journey.arrivalDate
            color: Theme.placeHolderColor
            font.pixelSize: Theme.captionSize
        }
    }
    Item {
        width: item.width
        height: Math.ceil(item.narrow ? included.height + (details.visible ? 4 + details.height : 0) : Math.max(included.height, details.visible ? details.height : 0))
        Flow {
            id: included
            anchors.left: parent.left
            y: item.narrow ? 0 : parent.height - height
            width: parent.width - (item.narrow || !details.visible ? 0 : details.width + 4)
            spacing: 6
            CardText { visible: text !== ""; text: item.journey.cabin; color: Theme.placeHolderColor; font.pixelSize: Theme.smallSize }
            CardText { visible: text !== ""; text: item.journey.refundability; color: Theme.placeHolderColor; font.pixelSize: Theme.smallSize }
            Row {
                spacing: 5
                Allowance { iconName: "handcarryIcon"; text: item.journey.cabinBaggage }
                Allowance { iconName: "brifcaseIcon"; text: item.journey.checkInBaggage }
            }
        }
        Row {
            id: details
            visible: detailsLabel.text !== ""
            anchors.right: parent.right
            y: parent.height - height
            CardText {
                id: detailsLabel
                color: Theme.secondaryColor
                font.pixelSize: Theme.smallSize
                font.weight: Font.Medium
            }
            Icon {
                y: Math.round((parent.height - height) / 2)
                width: 14
                height: 14
                name: "showSegmentIcon"
                color: Theme.secondaryColor
                rotation: item.unfolded ? 180 : 0
            }
        }
    }
}
