import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// Three wheels for a date within its limits.
Sheet {
    id: sheet

    required property string title
    required property string earliest
    required property string latest
    required property string day
    signal picked(day: string)

    // In landscape the wheels show what there is room for, and the title gives its place to them.
    readonly property real room: height - 40 - Theme.target - 2 * Theme.margin - done.implicitHeight - column.spacing
    readonly property bool cramped: room < heading.implicitHeight + column.spacing + 3 * dayWheel.entryHeight

    name: title
    wantedHeight: column.implicitHeight + 2 * Theme.margin

    DateChoice {
        id: choice
        earliest: sheet.earliest
        latest: sheet.latest
        onChanged: {
            monthWheel.show()
            dayWheel.show()
            yearWheel.show()
        }
        Component.onCompleted: choice.day = sheet.day
    }
    ColumnLayout {
        id: column
        x: Theme.margin
        width: parent.width - 2 * x
        spacing: Theme.margin
        PlainText {
            id: heading
            visible: !sheet.cramped
            Layout.fillWidth: true
            text: sheet.title
            font.pixelSize: Theme.titleSize
            font.weight: Font.DemiBold
            spread: 1.1
            Accessible.role: Accessible.Heading
        }
        RowLayout {
            Layout.maximumHeight: sheet.cramped ? Math.max(dayWheel.entryHeight, sheet.room) : implicitHeight
            spacing: 8
            Wheel {
                id: monthWheel
                objectName: "month"
                Layout.fillWidth: true
                Layout.fillHeight: true
                focus: true
                label: Words.wheelMonth
                model: choice.months
                chosen: choice.monthIndex
                onTurned: index => choice.turnMonth(index)
            }
            Wheel {
                id: dayWheel
                objectName: "day"
                Layout.fillWidth: true
                Layout.fillHeight: true
                label: Words.wheelDay
                model: choice.days
                chosen: choice.dayIndex
                onTurned: index => choice.turnDay(index)
            }
            Wheel {
                id: yearWheel
                objectName: "year"
                Layout.fillWidth: true
                Layout.fillHeight: true
                label: Words.wheelYear
                model: choice.years
                chosen: choice.yearIndex
                onTurned: index => choice.turnYear(index)
            }
        }
        MainButton {
            id: done
            objectName: "done"
            Layout.fillWidth: true
            text: Words.done
            onClicked: sheet.picked(choice.day)
        }
    }
}
