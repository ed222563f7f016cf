import QtQuick
import Ombrivane.Private

// An icon as a control: 24 points in a target of 48.
Pressable {
    id: button

    required property string iconName
    required property string label
    property color tint: Theme.blackColor

    implicitWidth: Theme.target
    implicitHeight: Theme.target
    Accessible.name: label

    background: Rectangle {
        radius: Theme.target / 2
        color: button.down ? Theme.segmentColor : "transparent"
    }
    contentItem: Item {
        Icon {
            anchors.centerIn: parent
            width: 24
            height: 24
            name: button.iconName
            color: button.tint
            opacity: button.enabled ? 1 : 0.4
        }
    }
}
