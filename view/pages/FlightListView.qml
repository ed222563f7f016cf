import QtQuick
import Ombrivane

// The international results.
ResultsPage {
    id: page

    required property ResultsAdapter screen

    results: screen
}
