import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// The journeys of a booking leg by leg.
Item {
    id: page

    required property FlightDetailsAdapter screen

    Rectangle { anchors.fill: parent; color: Theme.canvasColor }
    PageHeader {
        id: header
        width: parent.width
        iconName: "crossIcon"
        leaveLabel: Words.close
        title: page.screen.title
        onLeave: page.screen.close()
    }
    PageColumn {
        isRead: true
        Accessible.role: Accessible.Pane
        Accessible.name: page.screen.title
        Accessible.focusable: true
        anchors { top: header.bottom; left: parent.left; right: parent.right; bottom: parent.bottom }
        Flow {
            Layout.fillWidth: true
            spacing: 8
            PlainText { width: implicitWidth > parent.width ? parent.width : undefined; text: page.screen.originCity; font.pixelSize: Theme.sectionSize; font.weight: Font.Medium }
            Icon { width: 22; height: 22 * Math.max(1, Theme.textScale); name: page.screen.routeImage; color: Theme.blackColor }
            PlainText { width: implicitWidth > parent.width ? parent.width : undefined; text: page.screen.destinationCity; font.pixelSize: Theme.sectionSize; font.weight: Font.Medium }
        }
        Repeater {
            model: page.screen.journeys
            Card {
                id: section
                required property JourneyValue modelData
                Layout.fillWidth: true
                title: modelData.sectionTitle
                Flow {
                    Layout.fillWidth: true
                    spacing: 8
                    PlainText { width: implicitWidth > parent.width ? parent.width : undefined; objectName: "sectionOrigin"; text: section.modelData.originCity; font.weight: Font.Medium }
                    Icon { width: 22; height: 22 * Math.max(1, Theme.textScale); name: "departureBlackIcon"; color: Theme.placeHolderColor }
                    PlainText { width: implicitWidth > parent.width ? parent.width : undefined; objectName: "sectionDestination"; text: section.modelData.destinationCity; font.weight: Font.Medium }
                }
                Repeater {
                    model: section.modelData.legs
                    LegBlock { Layout.fillWidth: true }
                }
            }
        }
    }
}
