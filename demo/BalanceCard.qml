import QtQuick
import OmbrivaneDemo

// What the customer has, large.
Rectangle {
    id: card

    required property WalletLook look
    required property string balance

    implicitHeight: lines.implicitHeight + 48
    radius: look.radius
    color: look.accent

    Column {
        id: lines
        anchors { left: parent.left; right: parent.right; margins: 24; verticalCenter: parent.verticalCenter }
        spacing: 4
        WalletText { look: card.look; width: parent.width; text: card.look.words.balance; color: look.accentText; size: 14 }
        WalletText {
            objectName: "balance"
            look: card.look
            width: parent.width
            text: card.balance
            color: look.accentText
            // Large already; it grows less than what is small.
            font.pixelSize: Math.round(34 * Math.min(look.textScale, 1.2))
            font.weight: Font.DemiBold
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 20
            maximumLineCount: 1
        }
    }
}
