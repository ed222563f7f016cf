import QtQuick
import Ombrivane.Private

// One screen of the stack: a pushed page slides in and fills the stage, a sheet or an alert lies over what is there. It
// keeps clear of notches, of bars and, in front, of the keyboard; the ground of a page runs under all of these.
Loader {
    id: entry

    required property QtObject screen
    required property url page
    required property int presentation
    required property int index
    // How far it comes, and the lowest and the topmost entry that are in view.
    required property real way
    required property int below
    required property int last
    // How far a finger has moved it away, from 0 to 1.
    property real pulled: 0
    readonly property bool pushed: presentation === 0
    property real arrival: pushed && index > 0 && Theme.pageDuration > 0 ? 1 : 0
    signal back

    x: Theme.safeLeft + (Words.rightToLeft ? -1 : 1) * Math.max(arrival, pulled) * way
    y: Theme.safeTop
    visible: index >= below || index === below - 1 && last === below
    enabled: index === last
    focus: enabled
    onLoaded: if (pushed) arrival = 0
    Component.onCompleted: setSource(page, {"screen": screen})

    Rectangle {
        z: -1
        visible: entry.pushed
        x: -Theme.safeLeft
        y: -Theme.safeTop
        width: entry.way
        height: entry.height + Theme.safeTop + Math.max(Theme.safeBottom, Theme.keyboardHeight)
        color: Theme.canvasColor
    }
    Unspoken { item: entry.item as Item; when: !entry.enabled }
    Behavior on arrival { NumberAnimation { duration: Theme.pageDuration; easing.type: Easing.OutCubic } }
    Connections {
        target: entry.item
        ignoreUnknownSignals: true
        function onBack() { entry.back() }
    }
}
