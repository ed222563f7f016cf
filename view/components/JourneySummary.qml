import QtQuick
import QtQuick.Layouts
import Ombrivane

// One journey of a session's summary card.
ColumnLayout {
    id: block

    required property JourneyValue modelData

    spacing: 4
    RowLayout {
        Layout.fillWidth: true
        spacing: 10
        Logo { url: block.modelData.carrierLogo }
        PlainText { Layout.fillWidth: true; text: block.modelData.route; font.weight: Font.Medium }
    }
    Flow {
        Layout.fillWidth: true
        spacing: 8
        Icon { width: 20; height: 20; name: block.modelData.dateIcon; color: Theme.placeHolderColor }
        PlainText { text: block.modelData.date; font.pixelSize: Theme.captionSize }
        PlainText { text: block.modelData.time; font.pixelSize: Theme.captionSize; font.weight: Font.Medium }
        PlainText { text: block.modelData.duration; font.pixelSize: Theme.captionSize; color: Theme.placeHolderColor }
        PlainText { text: block.modelData.stops; font.pixelSize: Theme.captionSize; color: Theme.placeHolderColor }
    }
}
