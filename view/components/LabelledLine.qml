import QtQuick
import Ombrivane.Private

// An icon, what is told, and its value.
Item {
    id: line

    property string iconName: ""
    property string label: ""
    property string value: ""
    property bool awaited: false
    // In the letters of a caption, with a smaller icon.
    property bool compact: false

    // The value goes below its label where there is no room beside it.
    readonly property bool stacked: laidOut && value !== "" && label !== "" && width - indent < naturalLabel.advanceWidth + naturalValue.advanceWidth + 12

    readonly property real indent: icon.visible ? (compact ? 24 : 32) : 0
    // Before it has its width its texts are squeezed to a letter a line, a height that a layout would keep.
    readonly property bool laidOut: width > 120
    implicitHeight: !laidOut ? 22 * Theme.textScale : stacked ? told.implicitHeight + given.implicitHeight : Math.max(icon.height, told.implicitHeight, given.implicitHeight)

    TextMetrics { id: naturalLabel; font: told.font; text: line.label }
    TextMetrics { id: naturalValue; font: given.font; text: line.value }
    Icon {
        id: icon
        visible: line.iconName !== ""
        width: visible ? height : 0
        height: line.compact ? 18 : 22
        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        name: line.iconName
        color: Theme.placeHolderColor
    }
    PlainText {
        id: told
        anchors { left: parent.left; leftMargin: line.indent }
        y: line.stacked ? 0 : (line.height - height) / 2
        width: line.width - line.indent - (line.stacked ? 0 : given.width + 10)
        text: line.label
        awaited: line.awaited
        color: Theme.placeHolderColor
        font.pixelSize: line.compact ? Theme.captionSize : Theme.bodySize
    }
    PlainText {
        id: given
        anchors.right: parent.right
        y: line.stacked ? line.height - height : (line.height - height) / 2
        width: Math.min(Math.ceil(naturalValue.advanceWidth) + Theme.overhang, line.width - line.indent)
        text: line.value
        awaited: line.awaited
        horizontalAlignment: Text.AlignRight
        font.pixelSize: told.font.pixelSize
        font.weight: Font.Medium
    }
}
