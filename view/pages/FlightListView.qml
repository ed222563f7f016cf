import QtQuick
import Ombrivane

// The international results.
ResultsPage {
    id: page

    required property FlightListAdapter screen

    results: screen
}
