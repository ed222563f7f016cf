import QtQuick
import Ombrivane.Private

// The tabs of the search; the highlight slides to the chosen one.
Rectangle {
    id: bar

    required property MainViewAdapter screen

    readonly property real cell: (width - 8) / Math.max(1, screen.tabCount)

    // Of the highest label, in points.
    property real labelHeight: 0

    function measure() {
        let highest = 0
        for (let index = 0; index < tabs.count; ++index) highest = Math.max(highest, tabs.itemAt(index)?.contentItem.implicitHeight ?? 0)
        labelHeight = highest
    }

    implicitHeight: Math.max(52 * Math.max(1, Theme.textScale * 0.75), labelHeight + 20)
    radius: height / 2
    color: Theme.whiteColor
    border.width: 1
    border.color: Theme.hairlineColor

    Rectangle {
        objectName: "chosenTab"
        x: 4 + (Words.rightToLeft ? bar.screen.tabCount - 1 - bar.screen.tab : bar.screen.tab) * bar.cell
        y: 4
        width: bar.cell
        height: parent.height - 8
        radius: height / 2
        color: Theme.secondaryColor
        Behavior on x { NumberAnimation { duration: Theme.stateDuration; easing.type: Easing.InOutQuad } }
    }
    Row {
        x: 4
        y: 4
        Repeater {
            id: tabs
            model: bar.screen.tabCount
            MarkedTab {
                id: tab
                required property int index
                objectName: "tab" + index
                width: bar.cell
                height: bar.height - 8
                text: bar.screen.tabLabels[index]
                marked: index === bar.screen.tab
                onClicked: bar.screen.tapTab(index)
                background: Rectangle { radius: height / 2; color: "transparent" }
                contentItem: PlainText {
                    text: tab.text
                    onImplicitHeightChanged: Qt.callLater(bar.measure)
                    font.weight: Font.Medium
                    font.pixelSize: Theme.captionSize
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    spread: 1.1
                    color: tab.index === bar.screen.tab ? Theme.secondaryTextColor : Theme.blackColor
                    Accessible.ignored: true
                }
            }
        }
    }
}
