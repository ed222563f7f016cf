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
        RouteLine {
            Layout.fillWidth: true
            origin: page.screen.originCity
            destination: page.screen.destinationCity
            iconName: page.screen.routeImage
            pixelSize: Theme.sectionSize
        }
        Repeater {
            model: page.screen.journeys
            Card {
                id: section
                required property JourneyValue modelData
                Layout.fillWidth: true
                title: modelData.sectionTitle
                RouteLine {
                    objectName: "sectionRoute"
                    Layout.fillWidth: true
                    origin: section.modelData.originCity
                    destination: section.modelData.destinationCity
                    iconName: "departureBlackIcon"
                    tint: Theme.placeHolderColor
                }
                Repeater {
                    model: section.modelData.legs
                    LegBlock { Layout.fillWidth: true }
                }
            }
        }
    }
}
