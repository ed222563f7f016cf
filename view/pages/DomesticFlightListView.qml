import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// The domestic results: on a round trip two tabs, the way out and the way back.
ResultsPage {
    id: page

    required property DomesticFlightListAdapter screen

    results: screen
    firstPart: screen.departurePart
    secondPart: screen.returnPart

    RowLayout {
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        visible: page.screen.showsTabs
        spacing: 8
        StepTab {
            objectName: "departingFlights"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            text: page.screen.departingTitle
            label: page.screen.departingLabel
            time: page.screen.departingTime
            price: page.screen.departingPrice
            openText: page.screen.chooseText
            marked: page.screen.tab === 0
            onClicked: page.screen.tapDepartingFlights()
        }
        StepTab {
            objectName: "returningFlights"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            text: page.screen.returningTitle
            label: page.screen.returningLabel
            time: page.screen.returningTime
            price: page.screen.returningPrice
            openText: page.screen.chooseText
            marked: page.screen.tab === 1
            onClicked: page.screen.tapReturningFlights()
        }
    }
}
