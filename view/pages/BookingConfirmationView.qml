import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// The ticket of a paid booking.
Item {
    id: page

    required property ConfirmationAdapter screen

    Rectangle { anchors.fill: parent; color: Theme.canvasColor }
    PageHeader {
        id: header
        width: parent.width
        title: page.screen.title
        onLeave: page.screen.back()
    }
    PageColumn {
        isRead: true
        Accessible.role: Accessible.Pane
        Accessible.name: page.screen.title
        Accessible.focusable: true
        footCover: waiting.visible ? waiting.height + Theme.margin : 0
        anchors { top: header.bottom; left: parent.left; right: parent.right; bottom: parent.bottom }
        Icon {
            Layout.alignment: Qt.AlignHCenter
            implicitWidth: 160
            implicitHeight: 160
            name: "ticket"
            dark: Theme.dark
        }
        PlainText { Layout.fillWidth: true; horizontalAlignment: Text.AlignHCenter; text: page.screen.text }
        RowLayout {
            Layout.fillWidth: true
            MainButton { objectName: "download"; Layout.fillWidth: true; iconName: "fileIcon"; text: page.screen.downloadText; onClicked: page.screen.downloadTicket() }
            IconButton { objectName: "share"; iconName: "shareIcon"; label: Words.ticketShare; onClicked: page.screen.share() }
        }
        Repeater {
            model: page.screen.flightBlocks
            ColumnLayout {
                id: flight
                required property TicketFlightValue modelData
                Layout.fillWidth: true
                spacing: 0
                Card {
                    Layout.fillWidth: true
                    title: flight.modelData.title
                    LabelledLine { Layout.fillWidth: true; label: flight.modelData.departureCity; value: flight.modelData.departureTime }
                    LabelledLine { Layout.fillWidth: true; label: flight.modelData.arrivalCity; value: flight.modelData.arrivalTime }
                    PlainText { text: flight.modelData.date; color: Theme.placeHolderColor }
                    LabelledLine { Layout.fillWidth: true; iconName: "handcarryIcon"; label: Words.cabinBaggage; value: flight.modelData.cabin }
                    LabelledLine { Layout.fillWidth: true; iconName: "brifcaseIcon"; label: Words.checkInBaggage; value: flight.modelData.checkIn }
                }
                // From edge to edge, so that the notches are those of the cards that it parts.
                Icon {
                    objectName: "ticketLine"
                    Layout.fillWidth: true
                    Layout.bottomMargin: -Theme.gap
                    implicitHeight: width * 24 / 320
                    name: "ticketLine"
                    color: Theme.formBorderColor
                }
            }
        }
        Card {
            objectName: "awaitedPassenger"
            Layout.fillWidth: true
            visible: page.screen.isLoading
            Repeater {
                model: [Words.ticketType, Words.ticketReservation, Words.ticketETicket, Words.ticketClass, Words.ticketStatus]
                LabelledLine {
                    required property string modelData
                    Layout.fillWidth: true
                    label: modelData
                    value: Words.loading
                }
            }
        }
        Repeater {
            model: page.screen.passengerBlocks
            Card {
                id: passenger
                required property TicketPassengerValue modelData
                Layout.fillWidth: true
                title: modelData.title
                PlainText { Layout.fillWidth: true; text: passenger.modelData.name; font.weight: Font.Medium }
                Repeater {
                    model: passenger.modelData.lines
                    ColumnLayout {
                        id: pair
                        required property TicketLineValue modelData
                        Layout.fillWidth: true
                        spacing: 4
                        LabelledLine { Layout.fillWidth: true; label: pair.modelData.leftTitle; value: pair.modelData.leftSubTitle }
                        LabelledLine { Layout.fillWidth: true; visible: label !== ""; label: pair.modelData.rightTitle; value: pair.modelData.rightSubTitle }
                    }
                }
            }
        }
    }
    WaitPanel {
        id: waiting
        anchors { bottom: parent.bottom; bottomMargin: Theme.margin; horizontalCenter: parent.horizontalCenter }
        width: Math.min(parent.width - 2 * Theme.margin, Theme.contentWidth)
        text: page.screen.showProgressView ? "" : page.screen.waitText
        hint: page.screen.showProgressView ? "" : page.screen.waitHint
    }
    ProgressOverlay {
        anchors.fill: parent
        visible: page.screen.showProgressView
        message: Words.ticketWait
        waitText: page.screen.waitText
        waitHint: page.screen.waitHint
    }
    SnackBar {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Theme.margin }
        message: page.screen.errorMessage
        shown: page.screen.showSnackBar
    }
}
