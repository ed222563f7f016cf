import QtQuick
import Ombrivane.Private

// A text of a card, which its control reads out as a whole.
PlainText {
    spread: 1.2
    Accessible.ignored: true
}
