import QtQuick
import Ombrivane.Private

// At the end of a field: whether it is missing or in order.
Icon {
    // The colour by whose name the form tells it.
    property string mark: "formBorderColor"
    readonly property bool missing: mark === "primaryColor"
    readonly property bool inOrder: mark === "secondaryColor"

    anchors { right: parent.right; rightMargin: 14; verticalCenter: parent.verticalCenter }
    visible: missing || inOrder
    width: 22
    height: 22
    name: missing ? "warningIcon" : "doneIcon"
    color: missing ? Theme.primaryColor : Theme.secondaryColor
}
