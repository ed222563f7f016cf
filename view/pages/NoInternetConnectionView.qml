import QtQuick
import Ombrivane

// The search failed for connectivity; a step of the date tries again.
EmptyState {
    id: page

    required property NoInternetAdapter screen

    imageName: "noInternet"
    title: screen.title
    text: screen.text
}
