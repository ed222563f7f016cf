import QtQuick
import Ombrivane.Private

// One day of a month: chosen days are filled and bold, the days between them lie on a band. A month has many days, of
// which few are more than their number: what lies under it is made for those alone.
ListEntry {
    id: cell

    required property DayAdapter modelData
    property Item ringed: null
    readonly property bool banded: modelData.inRange || modelData.joinsPrevious || modelData.joinsNext

    objectName: modelData.date
    marked: modelData.selected
    enabled: modelData.selectable
    isChoice: true
    Accessible.name: modelData.label

    background: Loader {
        active: cell.banded || cell.marked || cell.down || cell.activeFocus
        sourceComponent: Item {
            Rectangle {
                readonly property real from: cell.modelData.inRange || cell.modelData.joinsPrevious ? 0 : parent.width / 2
                readonly property real to: cell.modelData.inRange || cell.modelData.joinsNext ? parent.width : parent.width / 2
                visible: cell.banded
                x: Words.rightToLeft ? parent.width - to : from
                y: disc.y
                width: to - from
                height: disc.height
                color: Theme.calenderRangeColor
            }
            Rectangle {
                id: disc
                anchors.centerIn: parent
                width: Math.min(parent.width, height)
                height: parent.height - 4
                radius: height / 2
                color: cell.modelData.selected ? Theme.secondaryColor : cell.down ? Theme.segmentColor : "transparent"
            }
            Component.onCompleted: cell.ringed = disc
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
