import QtQuick
import QtQuick.Templates as T
import Ombrivane

// An icon as a control: 24 points in a target of 48.
T.AbstractButton {
    id: button

    required property string iconName
    required property string label
    property color tint: Theme.blackColor

    implicitWidth: Theme.target
    implicitHeight: Theme.target
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Button
    Accessible.name: label

    background: Rectangle {
        radius: Theme.target / 2
        color: button.down ? Theme.segmentColor : "transparent"
        border.width: button.visualFocus ? 2 : 0
        border.color: Theme.secondaryColor
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
    Keys.onReturnPressed: button.clicked()
    Keys.onEnterPressed: button.clicked()
}
