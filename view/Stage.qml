import QtQuick
import Ombrivane.Private

// Shows the stack of screens. What is covered takes no input and is told to nobody.
FocusScope {
    id: root

    required property StageModel model

    Repeater {
        id: entries
        model: root.model
        delegate: StageEntry {
            id: entry
            width: root.width - Theme.safeLeft - Theme.safeRight
            height: root.height - Theme.safeTop - Math.max(Theme.safeBottom, enabled ? Theme.keyboardHeight : 0)
            way: root.width
            below: root.model.firstInView
            last: root.model.count - 1
            pulled: swipe.page === entry ? swipe.part : 0
            onBack: root.model.back()
        }
    }
    EdgeSwipe {
        id: swipe
        anchors { top: parent.top; bottom: parent.bottom; left: parent.left }
        z: 1
        span: root.width
        onBegan: {
            const front = entries.itemAt(entries.count - 1) as StageEntry
            if (front.pushed && entries.count > 1) swipe.begin(front)
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
