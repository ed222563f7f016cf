import QtQuick
import Ombrivane

// Shows the stack of screens: pushed pages fill the stage and slide in, sheets and alerts lie over them. What is
// covered takes no input and is told to nobody.
FocusScope {
    id: root

    required property StageModel model

    Repeater {
        model: root.model
        delegate: Loader {
            id: entry

            required property QtObject screen
            required property url page
            required property int presentation
            required property int index
            readonly property bool pushed: presentation === 0
            property real arrival: pushed && index > 0 && Theme.pageDuration > 0 ? 1 : 0

            x: (Words.rightToLeft ? -arrival : arrival) * root.width
            width: root.width
            height: root.height
            visible: index >= root.model.firstInView || index === root.model.firstInView - 1 && root.model.count - 1 === root.model.firstInView
            enabled: index === root.model.count - 1
            focus: enabled
            onLoaded: if (pushed) arrival = 0
            Component.onCompleted: setSource(page, {"screen": screen})

            Unspoken { item: entry.item as Item; when: !entry.enabled }
            Behavior on arrival { NumberAnimation { duration: Theme.pageDuration; easing.type: Easing.OutCubic } }
            Connections {
                target: entry.item
                ignoreUnknownSignals: true
                function onBack() { root.model.back() }
            }
        }
    }
    FocusRing {
        objectName: "focusRing"
        z: 1
        canvas: Theme.canvasColor
        ink: Theme.blackColor
    }
    Keys.onBackPressed: event => event.accepted = root.model.back()
}
