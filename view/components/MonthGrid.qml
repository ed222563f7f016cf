pragma ComponentBehavior: Bound
import QtQuick
import Ombrivane.Private

// One month: its title and its days in seven columns.
Column {
    id: month

    required property MonthAdapter row
    required property real cellWidth
    required property real cellHeight
    // The day that the keys stand on, "yyyy-MM-dd".
    property string dayAtKeys: ""
    signal tapped(day: string)

    function cellAt(day: string): Item {
        for (let i = 0; i < days.count; ++i)
            if (days.itemAt(i).objectName === day) return days.itemAt(i)
        return null
    }

    spacing: 4
    bottomPadding: Theme.sectionGap

    PlainText {
        anchors { left: parent.left; leftMargin: 12 }
        width: parent.width - 24
        text: month.row.title
        font.pixelSize: Theme.sectionSize
        font.weight: Font.Medium
        Accessible.role: Accessible.Heading
    }
    Item {
        width: month.cellWidth * 7
        height: month.cellHeight * Math.ceil((days.count + month.row.firstColumn) / 7)
        Repeater {
            id: days
            model: month.row.days
            DayCell {
                required property int index
                readonly property int position: index + month.row.firstColumn
                x: (Words.rightToLeft ? 6 - position % 7 : position % 7) * month.cellWidth
                y: Math.floor(position / 7) * month.cellHeight
                width: month.cellWidth
                height: month.cellHeight
                atKeys: modelData.date === month.dayAtKeys
                onClicked: month.tapped(modelData.date)
            }
        }
    }
}
