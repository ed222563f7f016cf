import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// When, and for whom.
ColumnLayout {
    id: trip

    required property SearchFormAdapter screen

    function firstMissing(): Item {
        return departure.missing ? departure : returning.missing ? returning : nationality.missing ? nationality : null
    }

    spacing: Theme.gap

    GridLayout {
        id: dates
        Layout.fillWidth: true
        columns: trip.width < 340 * Theme.textScale ? 1 : 2
        columnSpacing: Theme.gap
        rowSpacing: Theme.gap
        FieldButton {
            id: departure
            objectName: "departureDate"
            Layout.fillWidth: true
            Layout.columnSpan: trip.screen.showsReturnDate ? 1 : dates.columns
            Layout.preferredWidth: 1
            iconName: "calendarIcon"
            placeholder: trip.screen.departureDatePlaceholder
            value: trip.screen.departureDate
            mark: trip.screen.departureDateIsMissing ? "primaryColor" : "formBorderColor"
            onClicked: trip.screen.tapDate()
        }
        FieldButton {
            id: returning
            objectName: "returnDate"
            visible: trip.screen.showsReturnDate
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            iconName: "calendarIcon"
            placeholder: trip.screen.returnDatePlaceholder
            value: trip.screen.returnDate
            mark: trip.screen.returnDateIsMissing ? "primaryColor" : "formBorderColor"
            onClicked: trip.screen.tapDate()
        }
    }
    FieldButton {
        id: nationality
        objectName: "nationality"
        Layout.fillWidth: true
        iconName: "globeIcon"
        placeholder: trip.screen.nationalityPlaceholder
        value: trip.screen.nationality
        mark: trip.screen.nationalityIsMissing ? "primaryColor" : "formBorderColor"
        onClicked: trip.screen.tapNationality()
    }
    FieldButton {
        objectName: "travellers"
        Layout.fillWidth: true
        iconName: "travellersIcon"
        placeholder: Words.searchTravellers
        value: trip.screen.travellers
        onClicked: trip.screen.tapTravellers()
    }
    ProgressLine {
        Layout.fillWidth: true
        visible: trip.screen.isFetchingCountries
        label: Words.fetchingCountries
    }
}
