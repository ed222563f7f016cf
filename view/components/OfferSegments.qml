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
        RowLayout {
            Layout.fillWidth: true
            spacing: 8
            Icon { implicitWidth: 22; implicitHeight: 22; name: "departureBlackIcon"; color: Theme.blackColor }
            RouteLine {
                Layout.fillWidth: true
                origin: block.journey.departureCountry
                destination: block.journey.arrivalCountry
                iconSize: 20
                tint: Theme.placeHolderColor
                toldAsOne: true
            }
        }
        Repeater {
            model: block.journey.segments
            SegmentLine { Layout.fillWidth: true }
        }
    }
}
