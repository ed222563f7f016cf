import QtQuick
import OmbrivaneDemo
import Ombrivane

// The demo's own window: a phone with the wallet's page, and the component over it while it is open; beside it the strip
// of conditions, where the window has the room, or else behind a button.
Window {
    id: window

    required property WalletAccount account
    required property Conditions conditions
    required property real phoneWidth
    required property real phoneHeight
    required property bool showsStrip
    property bool componentIsOpen: false
    property bool stripIsOpen: false
    readonly property real stripWidth: 344
    readonly property bool wide: showsStrip && width >= phoneWidth + stripWidth

    function openComponent(): void {
        componentIsOpen = true
        component.open()
    }
    function closeComponent(): void {
        component.drop()
        componentIsOpen = false
    }

    width: phoneWidth + (showsStrip ? stripWidth : 0)
    height: phoneHeight
    visible: true
    title: own.name
    color: plain.canvas

    WalletLook {
        id: own
        brand: window.conditions.brand
        dark: component.dark
        textScale: component.textScale
        language: window.account.language
    }
    WalletLook { id: plain; brand: -1; dark: component.dark }

    Reservations { onArrived: window.account.keep(take()) }
    HostEvents { onHappened: event => window.account.hear(event) }

    Item {
        id: phone
        width: window.wide ? window.phoneWidth : window.width
        height: window.wide ? Math.min(window.height, window.phoneHeight) : window.height - bar.height
        x: window.wide ? (window.width - window.stripWidth - width) / 2 : 0
        y: window.wide ? (window.height - height) / 2 : bar.height
        clip: true
        enabled: !window.stripIsOpen || window.wide

        Home {
            anchors.fill: parent
            visible: !window.componentIsOpen
            look: own
            account: window.account
            onFlightsChosen: window.openComponent()
        }
        OmbrivaneView {
            id: component
            objectName: "component"
            anchors.fill: parent
            visible: window.componentIsOpen
            focus: visible
            walletBalance: window.account.balance
            dark: window.conditions.look === "device" ? undefined : window.conditions.look === "dark"
            textScale: window.conditions.textScale > 0 ? window.conditions.textScale : undefined
            language: window.conditions.language !== "" ? window.conditions.language : undefined
        }
    }

    Rectangle {
        id: bar
        visible: window.showsStrip && !window.wide
        width: parent.width
        height: visible ? 48 : 0
        color: plain.card
        WalletButton {
            objectName: "conditions"
            look: plain
            quiet: true
            anchors { right: parent.right; rightMargin: 16; verticalCenter: parent.verticalCenter }
            text: window.stripIsOpen ? "Close" : "Conditions"
            onClicked: window.stripIsOpen = !window.stripIsOpen
        }
    }
    Rectangle {
        visible: strip.visible && !window.wide
        anchors { fill: parent; topMargin: bar.height }
        color: "#80000000"
        MouseArea { anchors.fill: parent; onClicked: window.stripIsOpen = false }
    }
    ConditionsStrip {
        id: strip
        visible: window.wide || (window.showsStrip && window.stripIsOpen)
        anchors { right: parent.right; top: parent.top; bottom: parent.bottom; topMargin: bar.height }
        width: Math.min(window.stripWidth, window.width)
        look: plain
        conditions: window.conditions
        Keys.onEscapePressed: window.stripIsOpen = false
    }
}
