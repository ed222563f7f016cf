import QtQuick
import Ombrivane

// The one text item of all pages: what comes from outside is never read as markup.
Text {
    // The distance of several lines; one alone stands in the middle of its place.
    property real spread: 1.35

    textFormat: Text.PlainText
    color: Theme.blackColor
    font.family: Theme.fontFamily
    font.pixelSize: Theme.bodySize
    lineHeight: lineCount > 1 ? spread : 1
    wrapMode: Text.Wrap
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
