import QtQuick
import QtQuick.Layouts
import Ombrivane

// One leg of the flight details, with the connection before it.
ColumnLayout {
    id: block

    required property LegValue modelData

    spacing: 6
    PlainText {
        Layout.fillWidth: true
        visible: text !== ""
        text: block.modelData.connection
        color: Theme.secondaryColor
        font.pixelSize: Theme.captionSize
    }
    RowLayout {
        Layout.fillWidth: true
        spacing: 10
        Logo { url: block.modelData.carrierLogo }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 0
            PlainText { Layout.fillWidth: true; text: block.modelData.carrier; font.weight: Font.Medium }
            PlainText { Layout.fillWidth: true; text: block.modelData.duration; font.pixelSize: Theme.captionSize; color: Theme.placeHolderColor }
        }
    }
    RowLayout {
        Layout.fillWidth: true
        spacing: 10
        Icon {
            implicitWidth: 24
            implicitHeight: 72
            name: "atobline"
            color: Theme.placeHolderColor
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2
            PlainText { Layout.fillWidth: true; text: block.modelData.departureAirport }
            PlainText { Layout.fillWidth: true; text: block.modelData.departure; font.pixelSize: Theme.captionSize; color: Theme.placeHolderColor }
            PlainText { Layout.fillWidth: true; Layout.topMargin: 8; text: block.modelData.arrivalAirport }
            PlainText { Layout.fillWidth: true; text: block.modelData.arrival; font.pixelSize: Theme.captionSize; color: Theme.placeHolderColor }
        }
    }
}
