import QtQuick
import Ombrivane

// What stands below the header of a result list: it reaches under the header and the bars, and keeps clear of them.
Item {
    property real topInset: 0
    property real collapsedInset: 0
    property real bottomInset: 0
    // How far it is scrolled from its start.
    property real offset: 0
}
