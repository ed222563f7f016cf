import QtQuick
import QtQuick.Layouts
import Ombrivane

// The wallet payment in place of a session's cards.
PageColumn {
    id: area

    required property PaymentAdapter screen

    Card {
        Layout.fillWidth: true
        PlainText { Layout.fillWidth: true; text: area.screen.route; font.weight: Font.Medium }
        PlainText { Layout.fillWidth: true; text: area.screen.date; color: Theme.placeHolderColor }
        LabelledLine { Layout.fillWidth: true; label: area.screen.referenceLabel; value: area.screen.reference }
        LabelledLine { Layout.fillWidth: true; label: area.screen.amountLabel; value: area.screen.amount }
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
    ProgressLine { Layout.fillWidth: true; visible: area.screen.showProgressView; label: qsTr("Payment") }
    MainButton {
        objectName: "verify"
        Layout.fillWidth: true
        text: area.screen.buttonText
        onClicked: area.screen.button()
    }
}
