import QtQuick
import QtQuick.Templates as T
import Ombrivane

// A round control that lies over a list; a dot marks what is on.
T.AbstractButton {
    id: button

    required property string iconName
    required property string label
    property bool marked: false

    implicitWidth: 56
    implicitHeight: 56
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Button
    Accessible.name: label
    Accessible.checkable: true
    Accessible.checked: marked
    Keys.onReturnPressed: button.clicked()
    Keys.onEnterPressed: button.clicked()

    background: Rectangle {
        radius: 28
        color: button.down ? Theme.segmentColor : Theme.whiteColor
        border.width: button.visualFocus || button.marked ? 2 : 1
        border.color: button.visualFocus ? Theme.blackColor : button.marked ? Theme.secondaryColor : Theme.formBorderColor
        Rectangle {
            visible: button.marked
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
