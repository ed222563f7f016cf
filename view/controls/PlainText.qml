import QtQuick
import Ombrivane

// The one text item of all pages: what comes from outside is never read as markup.
Text {
    textFormat: Text.PlainText
    color: Theme.blackColor
    font.family: Theme.fontFamily
    font.pixelSize: Theme.bodySize
    lineHeight: 1.35
    wrapMode: Text.Wrap
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
