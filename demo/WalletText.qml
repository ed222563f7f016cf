import QtQuick
import OmbrivaneDemo

// The one text item of the wallet: what comes from outside is never read as markup.
Text {
    required property WalletLook look
    property real size: 15

    textFormat: Text.PlainText
    color: look.ink
    font.family: look.family
    font.pixelSize: Math.round(size * look.textScale)
    wrapMode: Text.Wrap
    lineHeight: 1.15
    horizontalAlignment: Text.AlignLeft
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
