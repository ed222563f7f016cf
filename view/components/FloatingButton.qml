import QtQuick
import Ombrivane

// A round control that lies over a list; a dot marks what is on.
Pressable {
    id: button

    required property string iconName
    required property string label
    property bool on: false

    implicitWidth: 56
    implicitHeight: 56
    Accessible.name: label

    background: Rectangle {
        radius: 28
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
        Icon { anchors.centerIn: parent; width: 24; height: 24; name: button.iconName; color: Theme.blackColor }
    }
}
