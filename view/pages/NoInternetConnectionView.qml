import QtQuick
import Ombrivane.Private

// The search failed for connectivity, and is sent once more by its control or by a step of the date.
EmptyState {
    id: page

    required property NoInternetAdapter screen

    imageName: "noInternet"
    title: screen.title
    text: screen.text
    action: screen.buttonText
    onActed: screen.button()
}
