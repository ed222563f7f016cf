import QtQuick
import QtQuick.Layouts
import Ombrivane

// The demo's own window: a balance, one tile, the receipts, and the component over it while it is open.
Window {
    id: window

    required property real balance
    property bool dark: false
    property real textScale: 1
    property bool reducedMotion: false
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
    color: Theme.canvasColor

    ColumnLayout {
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.margin }
        visible: !window.componentIsOpen
        spacing: Theme.gap
        PlainText { text: "Wallet"; font.pixelSize: Theme.titleSize; font.weight: Font.DemiBold }
        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 112
            radius: Theme.cardRadius
            color: Theme.secondaryColor
            Column {
                anchors { left: parent.left; leftMargin: 20; verticalCenter: parent.verticalCenter }
                PlainText { text: "Balance"; color: Theme.secondaryTextColor; font.pixelSize: Theme.captionSize }
                PlainText {
                    text: "NPR " + window.balance
                    color: Theme.secondaryTextColor
                    font.pixelSize: 28
                    font.weight: Font.DemiBold
                }
            }
        }
        MainButton {
            objectName: "flights"
            Layout.fillWidth: true
            text: "Flights"
            iconName: "planeIcon"
            onClicked: window.openComponent()
        }
        PlainText { text: "Receipts"; font.pixelSize: Theme.sectionSize; font.weight: Font.Medium }
        PlainText {
            visible: window.receipts.length === 0
            text: "Nothing booked yet."
            color: Theme.placeHolderColor
        }
        Repeater {
            model: window.receipts
            Rectangle {
                id: receipt
                required property string modelData
                Layout.fillWidth: true
                implicitHeight: line.implicitHeight + 24
                radius: Theme.fieldRadius
                color: Theme.whiteColor
                PlainText {
                    id: line
                    anchors { left: parent.left; right: parent.right; margins: 12; verticalCenter: parent.verticalCenter }
                    text: receipt.modelData
                    font.pixelSize: Theme.captionSize
                }
            }
        }
    }
    OmbrivaneView {
        id: component
        objectName: "component"
        anchors.fill: parent
        visible: window.componentIsOpen
        focus: visible
        walletBalance: window.balance
        dark: window.dark
        textScale: window.textScale
        reducedMotion: window.reducedMotion
    }
}
