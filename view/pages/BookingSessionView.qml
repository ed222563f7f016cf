import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// A booking session: route and clock stay on top, the cards in reading order, the total and Continue at the foot.
Item {
    id: page

    required property SessionAdapter screen
    // By progress, or by the end of the session.
    readonly property bool isCovered: pays || screen.showProgressView || screen.showSessionExpiredAlert
    readonly property PaymentAdapter order: screen.payment
    readonly property bool pays: order !== null && order.showProgressView

    readonly property bool cramped: height < 560 * Math.min(1.5, Theme.textScale)

    // The first line that is marked comes into view, and has the focus.
    function showMissing() {
        let first = contactLine.row.isMarked ? contactLine : null
        for (let i = 0; first === null && i < passengers.count; ++i) {
            const line = passengers.itemAt(i) as ContactRow
            if (line !== null && line.row.isMarked) first = line
        }
        if (first === null) return
        first.forceActiveFocus(Qt.OtherFocusReason)
        cards.reveal(first)
    }

    Rectangle { anchors.fill: parent; color: Theme.canvasColor }
    Connections {
        target: page.screen
        function onShowSnackBarChanged() { if (page.screen.showSnackBar) page.showMissing() }
    }
    ColumnLayout {
        id: header
        width: parent.width
        spacing: 0
        enabled: page.screen.backEnabled
        PageHeader {
            Layout.fillWidth: true
            title: page.screen.showPaymentView ? page.screen.appBarTitle
                                               : Words.fill(Words.sessionRoute, {origin: page.screen.departLocation, destination: page.screen.destLocation})
            origin: page.screen.showPaymentView ? "" : page.screen.departLocation
            destination: page.screen.destLocation
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
    Unspoken { item: header; when: page.isCovered }
    Unspoken { item: cards; when: page.isCovered }
    Unspoken { item: payment; when: page.isCovered }
    Unspoken { item: foot; when: page.isCovered }
    PageColumn {
        id: cards
        anchors { top: header.bottom; left: parent.left; right: parent.right; bottom: moved.visible && !page.cramped ? moved.top : foot.visible ? foot.top : parent.bottom }
        visible: !page.screen.showPaymentView
        enabled: page.screen.lendsInput
        footCover: page.screen.showSnackBar ? snack.implicitHeight + Theme.margin : waiting.visible ? waiting.height + Theme.margin : 0
        // Where there is little height, with what is read first.
        Notice {
            Layout.fillWidth: true
            visible: message !== "" && page.cramped
            message: page.cramped ? page.screen.fareNotice : ""
            struck: page.screen.formerTotal
            glad: page.screen.fareFell
        }
        Card {
            Layout.fillWidth: true
            awaited: page.screen.isLoading
            Repeater {
                model: page.screen.information.journeys
                JourneySummary { Layout.fillWidth: true; awaited: page.screen.isLoading }
            }
            GridLayout {
                id: summary
                Layout.fillWidth: true
                columns: page.width < 374 * Theme.textScale || details.implicitWidth > page.width / 2 ? 1 : 2
                columnSpacing: 8
                rowSpacing: 4
                PlainText {
                    Layout.fillWidth: true
                    awaited: page.screen.isLoading
                    text: page.screen.information.passengerLine
                    color: Theme.placeHolderColor
                    font.pixelSize: Theme.captionSize
                }
                PillButton {
                    id: details
                    objectName: "details"
                    Layout.fillWidth: summary.columns === 1
                    text: page.screen.information.detailsText
                    enabled: page.screen.information.viewDetailsEnabled
                    onClicked: page.screen.information.viewDetails()
                }
            }
        }
        Card {
            Layout.fillWidth: true
            awaited: page.screen.isLoading
            title: page.screen.baggage.title
            Repeater {
                model: page.screen.baggage.blocks
                GridLayout {
                    id: block
                    required property BaggageValue modelData
                    Layout.fillWidth: true
                    columns: width < 290 * Theme.textScale ? 1 : 2
                    columnSpacing: Theme.margin
                    rowSpacing: 4
                    PlainText {
                        Layout.alignment: Qt.AlignTop
                        Layout.maximumWidth: parent.width
                        awaited: page.screen.isLoading
                        text: block.modelData.route
                        font.pixelSize: Theme.captionSize
                        font.weight: Font.Medium
                    }
                    ColumnLayout {
                        Layout.fillWidth: true
                        spacing: 2
                        LabelledLine { Layout.fillWidth: true; compact: true; iconName: "handcarryIcon"; label: page.screen.baggage.cabinLabel; value: block.modelData.cabin; awaited: page.screen.isLoading }
                        LabelledLine { Layout.fillWidth: true; compact: true; iconName: "brifcaseIcon"; label: page.screen.baggage.checkInLabel; value: block.modelData.checkIn; awaited: page.screen.isLoading }
                    }
                }
            }
        }
        CheckProgress {
            Layout.fillWidth: true
            visible: !page.screen.isLoading
            text: page.screen.contact.doneText
            part: page.screen.contact.donePart
        }
        Card {
            Layout.fillWidth: true
            title: page.screen.contact.contactTitle
            opacity: page.screen.isLoading ? 0.5 : 1
            ContactRow {
                id: contactLine
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
                id: passengers
                model: page.screen.contact.rows
                ContactRow { Layout.fillWidth: true }
            }
        }
    }
    Loader {
        id: payment
        anchors { top: header.bottom; left: parent.left; right: parent.right; bottom: parent.bottom }
        active: page.screen.payment !== null
        sourceComponent: PaymentCard {
            screen: page.screen.payment
            session: page.screen
            footCover: page.screen.showSnackBar ? snack.implicitHeight + Theme.margin : 0
        }
    }
    Notice {
        id: moved
        objectName: "fareMoved"
        anchors { bottom: foot.top; bottomMargin: 8; horizontalCenter: parent.horizontalCenter }
        width: Math.min(parent.width - 2 * Theme.margin, Theme.contentWidth)
        visible: message !== "" && foot.visible && !page.cramped
        message: page.cramped ? "" : page.screen.fareNotice
        struck: page.screen.formerTotal
        glad: page.screen.fareFell
    }
    FootBar {
        id: foot
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        visible: page.screen.showsFoot
        enabled: page.screen.proceedEnabled
        label: page.screen.totalLabel
        value: page.screen.total
        emphasised: true
        terse: page.cramped
        action: page.screen.continueText
        onClicked: {
            page.screen.proceed()
            page.showMissing()
        }
    }
    ProgressOverlay {
        anchors.fill: parent
        visible: page.pays && !page.screen.showSessionExpiredAlert
        message: Words.paymentWait
        waitText: page.order !== null ? page.order.waitText : ""
        waitHint: page.order !== null ? page.order.waitHint : ""
    }
    WaitPanel {
        id: waiting
        anchors { bottom: parent.bottom; bottomMargin: Theme.margin; horizontalCenter: parent.horizontalCenter }
        width: Math.min(parent.width - 2 * Theme.margin, Theme.contentWidth)
        text: page.screen.showProgressView ? "" : page.screen.waitText
        hint: page.screen.showProgressView ? "" : page.screen.waitHint
    }
    SnackBar {
        id: snack
        anchors { left: parent.left; right: parent.right; bottom: moved.visible ? moved.top : foot.visible ? foot.top : parent.bottom; margins: Theme.margin }
        message: page.screen.errorMessage
        shown: page.screen.showSnackBar
    }
    ProgressOverlay {
        anchors.fill: parent
        visible: page.screen.showProgressView && !page.screen.showSessionExpiredAlert
        message: page.screen.progressMessage
        waitText: page.screen.waitText
        waitHint: page.screen.waitHint
    }
    Rectangle {
        anchors.fill: parent
        visible: page.screen.showSessionExpiredAlert
        color: Theme.canvasColor
        Blocker { anchors.fill: parent }
        EndState {
            anchors.fill: parent
            imageName: "sessionExpired"
            title: page.screen.expiredTitle
            text: page.screen.showSessionExpiredAlert ? page.screen.expiredText : ""
            action: page.screen.expiredButtonText
            actionName: "checkLatestFares"
            onActed: page.screen.checkLatestFares()
        }
    }
}
