import QtQuick
import Ombrivane.Private

// What stands below the header of a result list: it reaches under the header and the bars, and keeps clear of them.
Item {
    required property ResultsAdapter results
    property real topInset: 0
    property real collapsedInset: 0
    property real bottomInset: 0
    // How far it is scrolled from its start.
    property real offset: 0

    // Assigned, where a call would leave something to collect behind every frame of a movement.
    onOffsetChanged: results.offset = offset
    Component.onCompleted: results.offset = offset
}
