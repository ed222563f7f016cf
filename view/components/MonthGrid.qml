pragma ComponentBehavior: Bound
import QtQuick
import Ombrivane

// One month: its title and its days in seven columns.
Column {
    id: month

    required property MonthAdapter row
    required property real cellWidth
    required property real cellHeight
    signal tapped(day: string)

    spacing: 4
    bottomPadding: Theme.sectionGap

    PlainText {
        x: 12
        width: parent.width - 24
        text: month.row.title
        font.pixelSize: Theme.sectionSize
        font.weight: Font.Medium
        Accessible.role: Accessible.Heading
    }
    Grid {
        columns: 7
        Repeater {
            model: month.row.days
            Item {
                id: place
                required property DayAdapter modelData
                width: month.cellWidth
                height: month.cellHeight
                DayCell {
                    anchors.fill: parent
                    modelData: place.modelData
                    onClicked: month.tapped(place.modelData.date)
                }
            }
        }
    }
}
