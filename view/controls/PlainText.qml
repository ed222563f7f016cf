import QtQuick
import Ombrivane.Private

// The one text item of all pages: what comes from outside is never read as markup.
Text {
    // The distance of lines. The toolkit puts what it adds below each line; the paddings share it out evenly.
    property real spread: 1.35
    // Families of the device have taller lines of their own.
    readonly property real distance: Words.fontFamily !== "" ? Math.min(spread, 1.05) : spread

    // Its words are samples of what is not there yet: they give a shape its size and are told to nobody.
    property bool awaited: false

    textFormat: Text.PlainText
    color: Theme.blackColor
    font.family: Theme.fontFamily
    font.pixelSize: Theme.bodySize
    font.weight: Theme.textWeight
    lineHeight: distance
    topPadding: (distance - 1) * 0.6 * font.pixelSize
    bottomPadding: -topPadding
    wrapMode: Text.Wrap
    // Of the page, not of the letters: what is said mirrors with everything else.
    horizontalAlignment: Text.AlignLeft
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: awaited
}
