import QtQuick
import QtQuick.Layouts
import Ombrivane

// The search form of a tab.
ColumnLayout {
    id: form

    required property SearchFormAdapter screen

    spacing: Theme.gap

    Rectangle {
        Layout.fillWidth: true
        implicitHeight: places.implicitHeight
        radius: Theme.cardRadius
        color: Theme.whiteColor
        border.width: 1
        border.color: Theme.formBorderColor

        ColumnLayout {
            id: places
            anchors { left: parent.left; right: parent.right }
            spacing: 0
            FieldButton {
                objectName: "origin"
                Layout.fillWidth: true
                Layout.rightMargin: 56
                leastHeight: 64
                framed: false
                iconName: "departurePlaneIcon"
                placeholder: form.screen.originPlaceholder
                value: form.screen.origin
                onClicked: form.screen.tapOrigin()
            }
            Rectangle { Layout.fillWidth: true; Layout.leftMargin: 48; implicitHeight: 1; color: Theme.hairlineColor }
            FieldButton {
                objectName: "destination"
                Layout.fillWidth: true
                Layout.rightMargin: 56
                leastHeight: 64
                framed: false
                iconName: "departurePlaneIconTwo"
                placeholder: form.screen.destinationPlaceholder
                value: form.screen.destination
                onClicked: form.screen.tapDestination()
            }
        }
        Rectangle {
            anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
            width: Theme.target
            height: Theme.target
            radius: width / 2
            color: Theme.whiteColor
            border.width: 1
            border.color: Theme.formBorderColor
            IconButton {
                objectName: "swap"
                anchors.fill: parent
                iconName: "shuffelIcon"
                label: Words.searchSwap
                tint: Theme.blackColor
                onClicked: form.screen.swap()
            }
        }
    }
    GridLayout {
        id: dates
        Layout.fillWidth: true
        columns: form.width < 340 * Theme.textScale ? 1 : 2
        columnSpacing: Theme.gap
        rowSpacing: Theme.gap
        FieldButton {
            objectName: "departureDate"
            Layout.fillWidth: true
            Layout.columnSpan: form.screen.showsReturnDate ? 1 : dates.columns
            Layout.preferredWidth: 1
            iconName: "calendarIcon"
            placeholder: form.screen.departureDatePlaceholder
            value: form.screen.departureDate
            onClicked: form.screen.tapDate()
        }
        FieldButton {
            objectName: "returnDate"
            visible: form.screen.showsReturnDate
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            iconName: "calendarIcon"
            placeholder: form.screen.returnDatePlaceholder
            value: form.screen.returnDate
            onClicked: form.screen.tapDate()
        }
    }
    FieldButton {
        objectName: "nationality"
        Layout.fillWidth: true
        iconName: "globeIcon"
        placeholder: form.screen.nationalityPlaceholder
        value: form.screen.nationality
        onClicked: form.screen.tapNationality()
    }
    FieldButton {
        objectName: "travellers"
        Layout.fillWidth: true
        iconName: "travellersIcon"
        placeholder: Words.searchTravellers
        value: form.screen.travellers
        onClicked: form.screen.tapTravellers()
    }
    ProgressLine {
        Layout.fillWidth: true
        visible: form.screen.isFetchingCountries
        label: Words.fetchingCountries
    }
    MainButton {
        objectName: "search"
        Layout.fillWidth: true
        text: Words.searchFlights
        iconName: "paperPlaneIcon"
        onClicked: form.screen.search()
    }
}
