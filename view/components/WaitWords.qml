import QtQuick
import Ombrivane.Private

// What is waited for and, when it takes long, the way out, which is said aloud once.
Column {
    id: words

    required property string text
    required property string hint
    property int alignment: Text.AlignLeft
    property int weight: Font.Medium

    spacing: 4

    Aloud { text: words.hint }
    PlainText {
        objectName: "waitText"
        width: parent.width
        visible: text !== ""
        text: words.text
        horizontalAlignment: words.alignment
        font.weight: words.weight
    }
    PlainText {
        objectName: "waitHint"
        width: parent.width
        visible: text !== ""
        text: words.hint
        horizontalAlignment: words.alignment
        color: Theme.placeHolderColor
        font.pixelSize: Theme.captionSize
    }
}
