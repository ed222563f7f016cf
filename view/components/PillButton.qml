import QtQuick
import QtQuick.Templates as T
import Ombrivane

// A quiet control with an icon and a word.
T.AbstractButton {
    id: button

    property string iconName: ""
    property bool chosen: false
    // What the label leaves to the icon and the sides.
    readonly property real spared: iconName !== "" ? 58 : 32

    implicitHeight: Math.max(Theme.target, label.implicitHeight + 12)
    implicitWidth: Math.ceil(natural.advanceWidth) + Theme.overhang + spared
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Button
    Accessible.name: text
    Keys.onReturnPressed: button.clicked()
    Keys.onEnterPressed: button.clicked()

    TextMetrics { id: natural; font: label.font; text: button.text }
    background: Rectangle {
        radius: Math.min(height / 2, 24)
        color: button.chosen ? Theme.secondaryColor : button.down ? Theme.segmentColor : Theme.whiteColor
        border.width: button.visualFocus ? 2 : 1
        border.color: button.visualFocus ? (button.chosen ? Theme.blackColor : Theme.secondaryColor) : Theme.hairlineColor
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
                color: button.chosen ? Theme.secondaryTextColor : Theme.secondaryColor
            }
            PlainText {
                id: label
                width: Math.min(Math.ceil(natural.advanceWidth) + Theme.overhang, button.width - button.spared + 16)
                anchors.verticalCenter: parent.verticalCenter
                text: button.text
                color: button.chosen ? Theme.secondaryTextColor : Theme.blackColor
                font.pixelSize: Theme.captionSize
                font.weight: Font.Medium
                spread: 1.1
                horizontalAlignment: Text.AlignHCenter
                Accessible.ignored: true
            }
        }
    }
}
