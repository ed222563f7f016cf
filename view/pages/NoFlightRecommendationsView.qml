import QtQuick
import Ombrivane.Private

// No offer exists, or the filter left none.
EmptyState {
    id: page

    required property NoFlightsAdapter screen

    imageName: "noFlight"
    title: screen.title
    text: screen.text
    action: screen.buttonText
    onActed: screen.button()
}
