import QtQuick
import Ombrivane.Private

// A quiet control with an icon and a word.
Pressable {
    id: button

    property string iconName: ""
    // What the label leaves to the icon and the sides.
    readonly property real spared: iconName !== "" ? 58 : 32

    implicitHeight: Math.max(Theme.target, label.implicitHeight + 12)
    implicitWidth: Math.ceil(natural.advanceWidth) + Theme.overhang + spared
    Accessible.name: text

    TextMetrics { id: natural; font: label.font; text: button.text }
    background: Rectangle {
        radius: Math.min(height / 2, 24)
        color: button.down ? Theme.segmentColor : Theme.whiteColor
        border.width: 1
        border.color: Theme.hairlineColor
    }
    contentItem: Item {
        Row {
            anchors.centerIn: parent
            spacing: 6
            Icon {
                visible: button.iconName !== ""
                width: visible ? 20 : 0
                height: 20
                anchors.verticalCenter: parent.verticalCenter
                name: button.iconName
                color: Theme.secondaryColor
            }
            PlainText {
                id: label
                width: Math.min(Math.ceil(natural.advanceWidth) + Theme.overhang, button.width - button.spared + 16)
                anchors.verticalCenter: parent.verticalCenter
                text: button.text
                color: Theme.blackColor
                font.pixelSize: Theme.captionSize
                font.weight: Font.Medium
                spread: 1.1
                horizontalAlignment: Text.AlignHCenter
                Accessible.ignored: true
            }
        }
    }
}
