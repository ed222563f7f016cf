import QtQuick
import Ombrivane.Private

// One leg of the flight details, with the connection before it. Placed by hand: nested layouts keep the heights that
// their texts had before they got their width.
Column {
    id: block

    required property LegValue modelData

    spacing: 6
    PlainText {
        width: block.width
        visible: text !== ""
        text: block.modelData.connection
        color: Theme.secondaryColor
        font.pixelSize: Theme.captionSize
    }
    Item {
        width: block.width
        height: Math.max(logo.height, carrier.height)
        Logo {
            id: logo
            anchors.left: parent.left
            y: (parent.height - height) / 2
            width: implicitWidth
            height: implicitHeight
            url: block.modelData.carrierLogo
        }
        Column {
            id: carrier
            anchors { left: logo.right; leftMargin: 10 }
            width: parent.width - logo.width - 10
            PlainText { width: parent.width; text: block.modelData.carrier; font.weight: Font.Medium }
            PlainText { width: parent.width; text: block.modelData.duration; font.pixelSize: Theme.captionSize; color: Theme.placeHolderColor }
        }
    }
    Item {
        width: block.width
        height: Math.max(line.height, stops.height)
        Icon {
            id: line
            anchors.left: parent.left
            objectName: "legLine"
            y: (parent.height - height) / 2
            width: 24
            height: 72
            name: "atobline"
            color: Theme.placeHolderColor
        }
        Column {
            id: stops
            objectName: "legStops"
            anchors { left: line.right; leftMargin: 10 }
            y: (parent.height - height) / 2
            width: parent.width - line.width - 10
            spacing: 2
            PlainText { width: parent.width; text: block.modelData.departureAirport }
            PlainText { width: parent.width; text: block.modelData.departure; font.pixelSize: Theme.captionSize; color: Theme.placeHolderColor }
            Item { width: 1; height: 4 }
            PlainText { width: parent.width; text: block.modelData.arrivalAirport }
            PlainText { width: parent.width; text: block.modelData.arrival; font.pixelSize: Theme.captionSize; color: Theme.placeHolderColor }
        }
    }
}
