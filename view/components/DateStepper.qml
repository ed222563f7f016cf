import QtQuick
import Ombrivane.Private

// A travel date with the day before and the day after.
Rectangle {
    id: stepper

    required property string iconName
    required property string value
    required property string previousLabel
    required property string nextLabel
    signal previous
    signal next

    // Where the icon has no room beside the date, it stands above.
    readonly property bool stacked: width < 240 * Theme.textScale
    readonly property real sides: stacked ? 32 : 44

    implicitHeight: Math.max(Theme.target, date.implicitHeight + 6)
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
    TextMetrics { id: natural; font: text.font; text: stepper.value }
    Item {
        anchors { fill: parent; leftMargin: stepper.sides; rightMargin: stepper.sides }
        Grid {
            id: date
            anchors.centerIn: parent
            columns: stepper.stacked ? 1 : 2
            columnSpacing: 4
            horizontalItemAlignment: Grid.AlignHCenter
            verticalItemAlignment: Grid.AlignVCenter
            Icon {
                objectName: "dateIcon"
                width: 18
                height: 18
                name: stepper.iconName
                color: Theme.secondaryColor
            }
            PlainText {
                id: text
                objectName: "date"
                width: Math.min(Math.ceil(natural.advanceWidth) + 1, stepper.width - 2 * stepper.sides - (stepper.stacked ? 0 : 22))
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
