import QtQuick
import Ombrivane

// One day of a month: chosen days are filled and bold, the days between them lie on a band.
ListEntry {
    id: cell

    required property DayAdapter modelData
    readonly property Item ringed: disc

    objectName: modelData.date
    marked: modelData.selected
    enabled: modelData.selectable
    isChoice: true
    Accessible.name: modelData.label

    background: Item {
        // Few days lie on the band, and a month has many days.
        Loader {
            readonly property real from: cell.modelData.inRange || cell.modelData.joinsPrevious ? 0 : parent.width / 2
            readonly property real to: cell.modelData.inRange || cell.modelData.joinsNext ? parent.width : parent.width / 2
            active: to > from
            x: Words.rightToLeft ? parent.width - to : from
            y: disc.y
            width: to - from
            height: disc.height
            sourceComponent: Rectangle { color: Theme.calenderRangeColor }
        }
        Rectangle {
            id: disc
            anchors.centerIn: parent
            width: Math.min(parent.width, height)
            height: parent.height - 4
            radius: height / 2
            color: cell.modelData.selected ? Theme.secondaryColor : cell.down ? Theme.segmentColor : "transparent"
        }
    }
    contentItem: PlainText {
        text: cell.modelData.day
        color: cell.modelData.selected ? Theme.secondaryTextColor
             : cell.modelData.selectable ? Theme.blackColor : Theme.formBorderColor
        font.weight: cell.modelData.selected ? Font.DemiBold : Font.Normal
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        spread: 1
        wrapMode: Text.NoWrap
        Accessible.ignored: true
    }
}
