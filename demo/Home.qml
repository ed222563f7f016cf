import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// The wallet's own page, drawn like the component: a balance, one tile, the receipts.
ThemedScope {
    id: home

    required property real balance
    required property list<string> receipts
    signal flightsChosen

    ColumnLayout {
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.margin }
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
                    text: "NPR " + home.balance
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
            onClicked: home.flightsChosen()
        }
        PlainText { text: "Receipts"; font.pixelSize: Theme.sectionSize; font.weight: Font.Medium }
        PlainText {
            visible: home.receipts.length === 0
            text: "Nothing booked yet."
            color: Theme.placeHolderColor
        }
        Repeater {
            model: home.receipts
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
}
