import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// One journey of a session's summary card.
ColumnLayout {
    id: block

    required property JourneyValue modelData
    property bool awaited: false

    spacing: 4
    RowLayout {
        Layout.fillWidth: true
        spacing: 10
        Row {
            spacing: 4
            Repeater {
                model: block.modelData.carrierLogos
                Logo {
                    required property string modelData
                    objectName: "carrierLogo"
                    width: implicitWidth
                    height: implicitHeight
                    url: modelData
                }
            }
        }
        PlainText { Layout.fillWidth: true; awaited: block.awaited; text: block.modelData.route; font.weight: Font.Medium }
    }
    Flow {
        Layout.fillWidth: true
        spacing: 8
        Icon { width: 20; height: 20; name: block.modelData.dateIcon; color: Theme.placeHolderColor }
        PlainText { awaited: block.awaited; text: block.modelData.date; font.pixelSize: Theme.captionSize }
        PlainText { awaited: block.awaited; text: block.modelData.time; font.pixelSize: Theme.captionSize; font.weight: Font.Medium }
        PlainText { awaited: block.awaited; text: block.modelData.duration; font.pixelSize: Theme.captionSize; color: Theme.placeHolderColor }
        PlainText { awaited: block.awaited; text: block.modelData.stops; font.pixelSize: Theme.captionSize; color: Theme.placeHolderColor }
    }
}
