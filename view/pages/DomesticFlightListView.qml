import QtQuick
import QtQuick.Layouts
import Ombrivane

// The domestic results: on a round trip two tabs, the way out and the way back.
ResultsPage {
    id: page

    required property DomesticFlightListAdapter screen

    results: screen

    RowLayout {
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        visible: page.screen.showsTabs
        spacing: 8
        PillTab {
            objectName: "departingFlights"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            text: page.screen.departingTitle
            marked: page.screen.tab === 0
            onClicked: page.screen.tapDepartingFlights()
        }
        PillTab {
            objectName: "returningFlights"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            text: page.screen.returningTitle
            marked: page.screen.tab === 1
            onClicked: page.screen.tapReturningFlights()
        }
    }
}
