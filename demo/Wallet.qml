import QtQuick
import Ombrivane
import Ombrivane.Private

// The demo's own window: the wallet's page, and the component over it while it is open.
Window {
    id: window

    required property real balance
    property list<string> receipts: []
    property alias component: component
    property bool componentIsOpen: false

    function openComponent() {
        componentIsOpen = true
        component.open()
    }
    function closeComponent() {
        component.drop()
        componentIsOpen = false
    }

    visible: true
    title: "Wallet"
    color: component.Theme.canvasColor

    Home {
        anchors.fill: parent
        visible: !window.componentIsOpen
        balance: window.balance
        receipts: window.receipts
        dark: component.dark
        textScale: component.textScale
        reducedMotion: component.reducedMotion
        boldText: component.boldText
        onFlightsChosen: window.openComponent()
    }
    OmbrivaneView {
        id: component
        objectName: "component"
        anchors.fill: parent
        visible: window.componentIsOpen
        focus: visible
        walletBalance: window.balance
    }
}
