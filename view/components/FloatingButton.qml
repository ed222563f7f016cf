import QtQuick
import Ombrivane.Private

// A round control of a list, or with a word a pill; a dot marks what is on.
Pressable {
    id: button

    required property string iconName
    required property string label
    property bool on: false
    property bool compact: false
    readonly property real size: compact ? Theme.target : 56

    implicitWidth: text !== "" ? word.width + 64 : size
    implicitHeight: text !== "" ? Math.max(size, word.height + 12) : size
    Accessible.name: label

    background: Rectangle {
        radius: height / 2
        color: button.down ? Theme.segmentColor : Theme.whiteColor
        border.width: button.on ? 2 : 1
        border.color: button.on ? Theme.secondaryColor : Theme.formBorderColor
        Rectangle {
            visible: button.on
            anchors { right: parent.right; top: parent.top; margins: 2 }
            width: 14
            height: 14
            radius: 7
            color: Theme.secondaryColor
            border.width: 2
            border.color: Theme.whiteColor
        }
    }
    contentItem: Item {
        Row {
            anchors.centerIn: parent
            spacing: 8
            Icon { anchors.verticalCenter: parent.verticalCenter; width: 24; height: 24; name: button.iconName; color: Theme.blackColor }
            PlainText {
                id: word
                anchors.verticalCenter: parent.verticalCenter
                visible: button.text !== ""
                width: Math.ceil(implicitWidth)
                wrapMode: Text.NoWrap
                text: button.text
                font.weight: Font.Medium
                spread: 1.1
                Accessible.ignored: true
            }
        }
    }
}
