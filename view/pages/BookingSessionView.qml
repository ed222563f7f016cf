import QtQuick
import QtQuick.Layouts
import Ombrivane

// A booking session: route and clock stay on top, the cards in reading order, the total and Continue at the foot.
Item {
    id: page

    required property SessionAdapter screen
    readonly property bool pays: screen.payment !== null && screen.payment.showProgressView

    Rectangle { anchors.fill: parent; color: Theme.canvasColor }
    ColumnLayout {
        id: header
        width: parent.width
        spacing: 0
        enabled: page.screen.backEnabled
        PageHeader {
            Layout.fillWidth: true
            title: page.screen.showPaymentView ? page.screen.appBarTitle
                                               : Words.fill(Words.sessionRoute, {origin: page.screen.departLocation, destination: page.screen.destLocation})
            onLeave: page.screen.back()
        }
        ClockPill {
            Layout.alignment: Qt.AlignHCenter
            Layout.bottomMargin: 8
            Layout.maximumWidth: page.width - 2 * Theme.margin
            time: page.screen.clockText
            label: page.screen.clockLabel
            timeLeft: page.screen.clockPart
            lastMinute: page.screen.isLastMinute
        }
    }
    PageColumn {
        anchors { top: header.bottom; left: parent.left; right: parent.right; bottom: foot.visible ? foot.top : parent.bottom }
        visible: !page.screen.showPaymentView
        enabled: page.screen.lendsInput
        footCover: page.screen.showSnackBar ? snack.implicitHeight + Theme.margin : 0
        Card {
            Layout.fillWidth: true
            awaited: page.screen.isLoading
            Repeater {
                model: page.screen.information.journeys
                JourneySummary { Layout.fillWidth: true; awaited: page.screen.isLoading }
            }
            PlainText {
                Layout.fillWidth: true
                awaited: page.screen.isLoading
                text: page.screen.information.passengerLine
                color: Theme.placeHolderColor
                font.pixelSize: Theme.captionSize
            }
            MainButton {
                objectName: "details"
                Layout.fillWidth: true
                quiet: true
                text: page.screen.information.detailsText
                enabled: page.screen.information.viewDetailsEnabled
                onClicked: page.screen.information.viewDetails()
            }
        }
        Card {
            Layout.fillWidth: true
            awaited: page.screen.isLoading
            title: page.screen.baggage.title
            Repeater {
                model: page.screen.baggage.blocks
                ColumnLayout {
                    id: block
                    required property BaggageValue modelData
                    Layout.fillWidth: true
                    spacing: 4
                    PlainText { awaited: page.screen.isLoading; text: block.modelData.route; font.weight: Font.Medium }
                    LabelledLine { Layout.fillWidth: true; iconName: "handcarryIcon"; label: page.screen.baggage.cabinLabel; value: block.modelData.cabin; awaited: page.screen.isLoading }
                    LabelledLine { Layout.fillWidth: true; iconName: "brifcaseIcon"; label: page.screen.baggage.checkInLabel; value: block.modelData.checkIn; awaited: page.screen.isLoading }
                }
            }
        }
        Card {
            Layout.fillWidth: true
            title: page.screen.contact.contactTitle
            opacity: page.screen.isLoading ? 0.5 : 1
            ContactRow {
                objectName: "contactLine"
                Layout.fillWidth: true
                row: page.screen.contact.contactLine
            }
        }
        Card {
            Layout.fillWidth: true
            title: page.screen.contact.passengerTitle
            opacity: page.screen.isLoading ? 0.5 : 1
            Repeater {
                model: page.screen.contact.rows
                ContactRow { Layout.fillWidth: true }
            }
        }
        ProgressLine {
            Layout.fillWidth: true
            visible: page.screen.isLoading
            label: Words.sessionCheckingFare
        }
    }
    Loader {
        anchors { top: header.bottom; left: parent.left; right: parent.right; bottom: parent.bottom }
        active: page.screen.payment !== null
        sourceComponent: PaymentCard { screen: page.screen.payment }
    }
    FootBar {
        id: foot
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        visible: page.screen.showsFoot
        enabled: page.screen.proceedEnabled
        label: page.screen.totalLabel
        value: page.screen.total
        emphasised: true
        action: page.screen.continueText
        onClicked: page.screen.proceed()
    }
    ProgressOverlay {
        anchors.fill: parent
        visible: page.pays
        message: Words.paymentWait
    }
    SnackBar {
        id: snack
        anchors { left: parent.left; right: parent.right; bottom: foot.visible ? foot.top : parent.bottom; margins: Theme.margin }
        message: page.screen.errorMessage
        shown: page.screen.showSnackBar
    }
    ProgressOverlay {
        anchors.fill: parent
        visible: page.screen.showProgressView
        message: page.screen.progressMessage
    }
    Rectangle {
        anchors.fill: parent
        visible: page.screen.showSessionExpiredAlert
        color: Theme.canvasColor
        Accessible.role: Accessible.AlertMessage
        Accessible.name: page.screen.expiredTitle
        Blocker { anchors.fill: parent }
        ColumnLayout {
            anchors.centerIn: parent
            width: Math.min(parent.width - 2 * Theme.margin, 320)
            spacing: Theme.margin
            Icon {
                Layout.alignment: Qt.AlignHCenter
                implicitWidth: 160
                implicitHeight: 160
                name: "sessionExpired"
                dark: Theme.dark
            }
            PlainText {
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                text: page.screen.expiredTitle
                font.pixelSize: Theme.titleSize
                font.weight: Font.DemiBold
            }
            MainButton {
                objectName: "checkLatestFares"
                Layout.fillWidth: true
                text: page.screen.expiredButtonText
                onClicked: page.screen.checkLatestFares()
            }
        }
    }
}
