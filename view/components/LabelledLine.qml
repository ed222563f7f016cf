import QtQuick
import Ombrivane

// An icon, what is told, and its value.
Item {
    id: line

    property string iconName: ""
    property string label: ""
    property string value: ""

    implicitHeight: Math.max(22, told.implicitHeight, given.implicitHeight)

    TextMetrics { id: natural; font: given.font; text: line.value }
    Icon {
        id: icon
        visible: line.iconName !== ""
        width: visible ? 22 : 0
        height: 22
        anchors.verticalCenter: parent.verticalCenter
        name: line.iconName
        color: Theme.placeHolderColor
    }
    PlainText {
        id: told
        anchors { left: icon.right; leftMargin: icon.visible ? 10 : 0; right: given.left; rightMargin: 10; verticalCenter: parent.verticalCenter }
        text: line.label
        color: Theme.placeHolderColor
    }
    PlainText {
        id: given
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        width: Math.min(Math.ceil(natural.advanceWidth) + 1, line.width * 0.6)
        text: line.value
        horizontalAlignment: Text.AlignRight
        font.weight: Font.Medium
    }
}
