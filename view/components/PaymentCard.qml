import QtQuick
import QtQuick.Layouts
import Ombrivane

// The wallet payment in place of a session's cards.
PageColumn {
    id: area

    required property PaymentAdapter screen

    Card {
        Layout.fillWidth: true
        awaited: area.screen.showProgressView
        PlainText { Layout.fillWidth: true; awaited: area.screen.showProgressView; text: area.screen.route; font.weight: Font.Medium }
        PlainText { Layout.fillWidth: true; awaited: area.screen.showProgressView; text: area.screen.date; color: Theme.placeHolderColor }
        LabelledLine { Layout.fillWidth: true; label: area.screen.referenceLabel; value: area.screen.reference; awaited: area.screen.showProgressView }
        LabelledLine { Layout.fillWidth: true; label: area.screen.amountLabel; value: area.screen.amount; awaited: area.screen.showProgressView }
    }
    FormField {
        objectName: "otp"
        Layout.fillWidth: true
        iconName: "confirmationOTPIcon"
        placeholder: area.screen.otpPlaceholder
        value: area.screen.otpText
        inputMethodHints: Qt.ImhDigitsOnly
        onTextEdited: area.screen.typeOtp(text)
    }
    MainButton {
        objectName: "verify"
        Layout.fillWidth: true
        text: area.screen.buttonText
        onClicked: area.screen.button()
    }
}
