import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// The wallet payment in place of a session's cards. As long as no order tells of itself, the booking that was opened does.
PageColumn {
    id: area

    required property PaymentAdapter screen
    required property SessionAdapter session
    readonly property bool told: screen.hasOrder
    readonly property string problem: screen.otpError
    readonly property string days: {
        const dates = []
        for (let i = 0; i < session.information.journeys.length; ++i) dates.push(session.information.journeys[i].date)
        return dates.join(" - ")
    }

    // Whoever mistyped types over it.
    onProblemChanged: if (problem !== "") {
        otp.forceActiveFocus(Qt.OtherFocusReason)
        otp.selectAll()
        reveal(otp)
    }

    Card {
        Layout.fillWidth: true
        awaited: area.screen.showProgressView
        PlainText {
            objectName: "route"
            Layout.fillWidth: true
            awaited: area.screen.showProgressView
            text: area.told ? area.screen.route : Words.fill(Words.sessionRoute, {origin: area.session.departLocation, destination: area.session.destLocation})
            font.weight: Font.Medium
        }
        PlainText { Layout.fillWidth: true; awaited: area.screen.showProgressView; text: area.told ? area.screen.date : area.days; color: Theme.placeHolderColor }
        LabelledLine { Layout.fillWidth: true; visible: area.told; label: area.screen.referenceLabel; value: area.screen.reference; awaited: area.screen.showProgressView }
        LabelledLine { Layout.fillWidth: true; label: area.screen.amountLabel; value: area.told ? area.screen.amount : area.session.total; awaited: area.screen.showProgressView }
    }
    CustomTextFieldView {
        id: otp
        objectName: "otp"
        Layout.fillWidth: true
        iconName: "confirmationOTPIcon"
        placeholder: area.screen.otpPlaceholder
        value: area.screen.otpText
        problem: area.problem
        inputMethodHints: Qt.ImhDigitsOnly
        onTextEdited: area.screen.typeOtp(text)
    }
    PlainText {
        objectName: "otpProblem"
        Layout.fillWidth: true
        Layout.leftMargin: Theme.margin
        Layout.topMargin: -4
        visible: text !== ""
        text: area.problem
        color: Theme.primaryColor
        font.pixelSize: Theme.captionSize
        Accessible.ignored: true
    }
    MainButton {
        objectName: "verify"
        Layout.fillWidth: true
        text: area.screen.buttonText
        onClicked: area.screen.button()
    }
}
