import QtQuick
import QtQuick.Templates as T
import Ombrivane

// A box with what it says.
T.AbstractButton {
    id: button

    property bool marked: false

    implicitHeight: Math.max(Theme.target, label.implicitHeight + 12)
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.checked: marked
    Keys.onReturnPressed: button.clicked()

    background: Rectangle {
        radius: Theme.fieldRadius
        color: "transparent"
        border.width: button.visualFocus ? 2 : 0
        border.color: Theme.secondaryColor
    }
    contentItem: Item {
        Icon {
            id: box
            width: 24
            height: 24
            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            name: button.marked ? "checkmark.square" : "square"
            color: button.marked ? Theme.secondaryColor : Theme.formBorderColor
        }
        PlainText {
            id: label
            anchors { left: box.right; leftMargin: 12; right: parent.right; verticalCenter: parent.verticalCenter }
            text: button.text
            Accessible.ignored: true
        }
    }
}
