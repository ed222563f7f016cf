import QtQuick
import QtQuick.Layouts
import Ombrivane

// One journey of an offer card: airline and price, times around the plane on its line, places, what is included.
ColumnLayout {
    id: item

    required property JourneyAdapter journey
    property string price: ""
    property string detailsText: ""
    property bool unfolded: false
    property bool awaited: false
    readonly property bool narrow: width < 270 * Theme.textScale

    spacing: 8

    GridLayout {
        Layout.fillWidth: true
        columns: item.narrow ? 1 : 2
        columnSpacing: 8
        rowSpacing: 4
        RowLayout {
            Layout.fillWidth: true
            spacing: 8
            Logo { url: item.journey.carrierLogo }
            CardText {
                Layout.fillWidth: true
                awaited: item.awaited
                text: item.journey.carrierName
                font.weight: Font.Medium
            }
        }
        CardText {
            visible: item.price !== ""
            awaited: item.awaited
            text: item.price
            tint: Theme.primaryColor
            font.pixelSize: Theme.priceSize
            font.weight: Font.DemiBold
        }
    }
    CardText {
        Layout.alignment: Qt.AlignHCenter
        visible: item.narrow
        awaited: item.awaited
        text: item.journey.duration
        tint: Theme.placeHolderColor
        font.pixelSize: Theme.captionSize
    }
    RowLayout {
        Layout.fillWidth: true
        spacing: 8
        CardText {
            awaited: item.awaited
            text: item.journey.departureTime
            font.pixelSize: Theme.timeSize
            font.weight: Font.Medium
        }
        Column {
            Layout.fillWidth: true
            CardText {
                visible: !item.narrow
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                awaited: item.awaited
                text: item.journey.duration
                tint: Theme.placeHolderColor
                font.pixelSize: Theme.captionSize
            }
            PlaneLine {
                width: Math.min(parent.width, implicitWidth)
                anchors.horizontalCenter: parent.horizontalCenter
                lineImage: item.journey.lineImage
            }
        }
        CardText {
            awaited: item.awaited
            text: item.journey.arrivalTime
            font.pixelSize: Theme.timeSize
            font.weight: Font.Medium
        }
    }
    RowLayout {
        Layout.fillWidth: true
        spacing: 8
        Column {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            CardText { width: parent.width; awaited: item.awaited; text: item.journey.departureLocation; font.weight: Font.Medium }
            CardText {
                width: parent.width
                awaited: item.awaited
                text: item.journey.departureDate
                tint: Theme.placeHolderColor
                font.pixelSize: Theme.captionSize
            }
        }
        Column {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            CardText {
                width: parent.width
                horizontalAlignment: Text.AlignRight
                awaited: item.awaited
                text: item.journey.arrivalLocation
                font.weight: Font.Medium
            }
            CardText {
                width: parent.width
                horizontalAlignment: Text.AlignRight
                awaited: item.awaited
                text: item.journey.arrivalDate
                tint: Theme.placeHolderColor
                font.pixelSize: Theme.captionSize
            }
        }
    }
    Rectangle { Layout.fillWidth: true; Layout.topMargin: 2; implicitHeight: 1; color: Theme.hairlineColor }
    GridLayout {
        Layout.fillWidth: true
        columns: item.narrow ? 1 : 2
        columnSpacing: 8
        rowSpacing: 4
        Flow {
            Layout.fillWidth: true
            spacing: 12
            CardText { awaited: item.awaited; text: item.journey.cabin; tint: Theme.placeHolderColor; font.pixelSize: Theme.captionSize }
            CardText { awaited: item.awaited; text: item.journey.refundability; tint: Theme.placeHolderColor; font.pixelSize: Theme.captionSize }
            Allowance { iconName: "handcarryIcon"; text: item.journey.cabinBaggage; awaited: item.awaited }
            Allowance { iconName: "brifcaseIcon"; text: item.journey.checkInBaggage; awaited: item.awaited }
        }
        RowLayout {
            visible: item.detailsText !== ""
            Layout.alignment: Qt.AlignRight | Qt.AlignBottom
            spacing: 2
            CardText {
                awaited: item.awaited
                text: item.detailsText
                tint: Theme.secondaryColor
                font.pixelSize: Theme.captionSize
                font.weight: Font.Medium
            }
            Icon {
                implicitWidth: 20
                implicitHeight: 20
                name: "showSegmentIcon"
                color: Theme.secondaryColor
                rotation: item.unfolded ? 180 : 0
            }
        }
    }
}
