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
        PillButton {
            objectName: "departingFlights"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            Accessible.role: Accessible.PageTab
            Accessible.checked: chosen
            text: page.screen.departingTitle
            chosen: page.screen.tab === 0
            onClicked: page.screen.tapDepartingFlights()
        }
        PillButton {
            objectName: "returningFlights"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            Accessible.role: Accessible.PageTab
            Accessible.checked: chosen
            text: page.screen.returningTitle
            chosen: page.screen.tab === 1
            onClicked: page.screen.tapReturningFlights()
        }
    }
}
