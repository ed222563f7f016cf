import QtQuick
import Ombrivane

// At the end of a field: whether it is missing or in order.
Icon {
    required property bool missing
    required property bool inOrder

    anchors { right: parent.right; rightMargin: 14; verticalCenter: parent.verticalCenter }
    visible: missing || inOrder
    width: 22
    height: 22
    name: missing ? "warningIcon" : "doneIcon"
    color: missing ? Theme.primaryColor : Theme.secondaryColor
}
