import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// The unfolded segments of a journey, as a vertical line with dots at the airports and breaks at the connections.
Rectangle {
    id: block

    required property JourneyAdapter journey

    implicitHeight: column.implicitHeight + 2 * Theme.gap
    radius: Theme.fieldRadius
    color: Theme.segmentColor

    ColumnLayout {
        id: column
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.gap }
        spacing: 8
        Flow {
            Layout.fillWidth: true
            spacing: 8
            Icon { width: 22; height: 22; name: "departureBlackIcon"; color: Theme.blackColor }
            CardText { width: implicitWidth > parent.width ? parent.width : undefined; text: block.journey.departureCountry; font.weight: Font.Medium }
            Icon { width: 20; height: 22; name: "toIcon"; color: Theme.placeHolderColor }
            CardText { width: implicitWidth > parent.width ? parent.width : undefined; text: block.journey.arrivalCountry; font.weight: Font.Medium }
        }
        Repeater {
            model: block.journey.segments
            SegmentLine { Layout.fillWidth: true }
        }
    }
}
