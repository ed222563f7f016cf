import QtQuick
import QtQuick.Templates as T
import Ombrivane

// One choice of a group.
T.AbstractButton {
    id: item

    required property RadioRowAdapter row

    implicitHeight: Math.max(Theme.target, label.implicitHeight + 12)
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.RadioButton
    Accessible.name: row.label
    Accessible.checked: row.isMarked
    onClicked: row.tap()
    Keys.onReturnPressed: item.clicked()

    background: Rectangle {
        radius: Theme.fieldRadius
        color: item.down ? Theme.segmentColor : "transparent"
        border.width: item.visualFocus ? 2 : 0
        border.color: Theme.secondaryColor
    }
    contentItem: Item {
        Icon {
            id: mark
            width: 24
            height: 24
            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            name: item.row.isMarked ? "largecircle.fill.circle" : "circle"
            color: item.row.isMarked ? Theme.secondaryColor : Theme.formBorderColor
        }
        PlainText {
            id: label
            anchors { left: mark.right; leftMargin: 12; right: parent.right; verticalCenter: parent.verticalCenter }
            text: item.row.label
            Accessible.ignored: true
        }
    }
}
