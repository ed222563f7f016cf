import QtQuick
import Ombrivane.Private

// The international results.
ResultsPage {
    id: page

    required property ResultsAdapter screen

    results: screen
}
