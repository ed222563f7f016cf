import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// From where and to where, with the control between them that exchanges the two.
Rectangle {
    id: card

    required property SearchFormAdapter screen

    // What its right end leaves to the control.
    readonly property real swapRoom: Theme.target + 8

    function firstMissing(): Item { return origin.missing ? origin : destination.missing ? destination : null }

    implicitHeight: places.implicitHeight
    radius: Theme.cardRadius
    color: Theme.whiteColor
    border.width: 1
    border.color: Theme.formBorderColor

    ColumnLayout {
        id: places
        anchors.fill: parent
        spacing: 0
        PlaceField {
            id: origin
            objectName: "origin"
            Layout.fillWidth: true
            Layout.fillHeight: true
            aside: card.swapRoom
            iconName: "departurePlaneIcon"
            placeholder: card.screen.originPlaceholder
            value: card.screen.origin !== "" ? card.screen.origin : card.screen.originCity
            city: card.screen.originCity
            code: card.screen.originCode
            airport: card.screen.originAirport
            mark: card.screen.originIsMissing ? "primaryColor" : "formBorderColor"
            onClicked: card.screen.tapOrigin()
        }
        Rectangle {
            Layout.fillWidth: true
            Layout.leftMargin: 48
            Layout.rightMargin: 1 // of the border
            implicitHeight: 1
            color: Theme.hairlineColor
        }
        PlaceField {
            id: destination
            objectName: "destination"
            Layout.fillWidth: true
            Layout.fillHeight: true
            aside: card.swapRoom
            iconName: "departurePlaneIconTwo"
            placeholder: card.screen.destinationPlaceholder
            value: card.screen.destination !== "" ? card.screen.destination : card.screen.destinationCity
            city: card.screen.destinationCity
            code: card.screen.destinationCode
            airport: card.screen.destinationAirport
            mark: card.screen.destinationIsMissing ? "primaryColor" : "formBorderColor"
            onClicked: card.screen.tapDestination()
        }
    }
    Rectangle {
        anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
        width: Theme.target
        height: Theme.target
        radius: width / 2
        color: Theme.whiteColor
        border.width: 1
        border.color: Theme.formBorderColor
        IconButton {
            objectName: "swap"
            anchors.fill: parent
            iconName: "shuffelIcon"
            label: Words.searchSwap
            tint: Theme.blackColor
            onClicked: card.screen.swap()
        }
    }
}
