import QtQuick
import Ombrivane

// A tab in the shape of a pill.
MarkedTab {
    id: tab

    implicitHeight: Math.max(Theme.target, label.implicitHeight + 12)

    background: Rectangle {
        radius: Math.min(height / 2, 24)
        color: tab.marked ? Theme.secondaryColor : tab.down ? Theme.segmentColor : Theme.whiteColor
        border.width: 1
        border.color: Theme.hairlineColor
    }
    contentItem: Item {
        PlainText {
            id: label
            anchors.centerIn: parent
            width: Math.min(Math.ceil(natural.advanceWidth) + Theme.overhang, tab.width - 16)
            text: tab.text
            color: tab.marked ? Theme.secondaryTextColor : Theme.blackColor
            font.pixelSize: Theme.captionSize
            font.weight: Font.Medium
            spread: 1.1
            horizontalAlignment: Text.AlignHCenter
            Accessible.ignored: true
        }
    }
    TextMetrics { id: natural; font: label.font; text: tab.text }
}
