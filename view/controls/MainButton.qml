import QtQuick
import Ombrivane.Private

// The one main action of a screen.
Pressable {
    id: button

    property string iconName: ""
    property bool quiet: false
    // What the label leaves to the icon and the sides.
    readonly property real spared: iconName !== "" ? 78 : 48
    readonly property color content: quiet ? Theme.blackColor : Theme.secondaryTextColor

    implicitHeight: Math.max(Theme.fieldHeight, label.implicitHeight + 16)
    implicitWidth: Math.ceil(natural.advanceWidth) + Theme.overhang + spared
    Accessible.name: text

    // At once: each member of the label's font that is set meanwhile would ask the device for a font of its own.
    TextMetrics { id: natural; font: Qt.font({family: Theme.fontFamily, pixelSize: Theme.sectionSize, weight: Font.Medium}); text: button.text }
    background: Rectangle {
        radius: height / 2
        color: button.quiet ? "transparent" : Theme.secondaryColor
        opacity: button.enabled ? (button.down ? 0.85 : 1) : 0.4
        border.width: button.quiet ? 1 : 0
        border.color: Theme.blackColor
    }
    contentItem: Item {
        Row {
            anchors.centerIn: parent
            spacing: 8
            Icon {
                visible: button.iconName !== ""
                width: visible ? 22 : 0
                height: 22
                anchors.verticalCenter: parent.verticalCenter
                name: button.iconName
                color: button.content
            }
            PlainText {
                id: label
                width: Math.min(Math.ceil(natural.advanceWidth) + Theme.overhang, button.width - button.spared + 24)
                horizontalAlignment: Text.AlignHCenter
                anchors.verticalCenter: parent.verticalCenter
                text: button.text
                color: button.content
                font.pixelSize: Theme.sectionSize
                font.weight: Font.Medium
                Accessible.ignored: true
            }
        }
    }
}
