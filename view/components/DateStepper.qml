import QtQuick
import Ombrivane

// A travel date with the day before and the day after.
Rectangle {
    id: stepper

    required property string iconName
    required property string value
    required property string previousLabel
    required property string nextLabel
    signal previous
    signal next

    implicitHeight: Math.max(Theme.target, text.implicitHeight + 8)
    radius: Math.min(height / 2, 24)
    color: Theme.whiteColor
    border.width: 1
    border.color: Theme.hairlineColor

    IconButton {
        id: before
        objectName: "previous"
        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        width: 44
        iconName: "chevronLeftIcon"
        label: stepper.previousLabel
        onClicked: stepper.previous()
    }
    Item {
        anchors { left: before.right; right: after.left; top: parent.top; bottom: parent.bottom }
        Row {
            anchors.centerIn: parent
            spacing: 4
            Icon {
                visible: stepper.width >= 240 * Theme.textScale
                width: visible ? 18 : 0
                height: 18
                anchors.verticalCenter: parent.verticalCenter
                name: stepper.iconName
                color: Theme.secondaryColor
            }
            PlainText {
                id: text
                width: Math.min(implicitWidth, before.parent.width - 88 - (stepper.width >= 240 * Theme.textScale ? 22 : 0))
                text: stepper.value
                horizontalAlignment: Text.AlignHCenter
                font.pixelSize: Theme.captionSize
                font.weight: Font.Medium
                spread: 1.1
            }
        }
    }
    IconButton {
        id: after
        objectName: "next"
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        width: 44
        iconName: "chevronRightIcon"
        label: stepper.nextLabel
        onClicked: stepper.next()
    }
}
