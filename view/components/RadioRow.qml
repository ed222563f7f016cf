import QtQuick
import Ombrivane.Private

// One choice of a group.
MarkedRadio {
    id: item

    required property RadioRowAdapter row

    marked: row.isMarked
    implicitHeight: Math.max(Theme.target, label.implicitHeight + 12)
    Accessible.name: row.label
    onClicked: row.tap()

    background: Rectangle {
        radius: Theme.fieldRadius
        color: item.down ? Theme.segmentColor : "transparent"
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
