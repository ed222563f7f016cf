pragma ComponentBehavior: Bound
import QtQuick
import Ombrivane.Private

// The part of a picture that is kept, in a frame whose corners are dragged or moved by the arrow keys.
Item {
    id: frame

    // A picture has the same sides in every language.
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true

    // In parts of the whole, from 0 to 1.
    readonly property rect kept: Qt.rect(startX, startY, endX - startX, endY - startY)
    property real startX: 0
    property real startY: 0
    property real endX: 1
    property real endY: 1
    readonly property real least: 0.1
    readonly property real step: 0.02

    function keepAll() {
        startX = startY = 0
        endX = endY = 1
    }
    function moveCorner(atRight: bool, atBottom: bool, x: real, y: real) {
        if (atRight) endX = Math.min(1, Math.max(startX + least, x)); else startX = Math.max(0, Math.min(endX - least, x))
        if (atBottom) endY = Math.min(1, Math.max(startY + least, y)); else startY = Math.max(0, Math.min(endY - least, y))
    }

    Rectangle { width: parent.width; height: frame.startY * parent.height; color: Theme.dimColor }
    Rectangle { y: frame.endY * parent.height; width: parent.width; height: parent.height - y; color: Theme.dimColor }
    Rectangle { y: hold.y; width: hold.x; height: hold.height; color: Theme.dimColor }
    Rectangle { x: hold.x + hold.width; y: hold.y; width: parent.width - x; height: hold.height; color: Theme.dimColor }
    Rectangle {
        id: hold
        x: frame.startX * parent.width
        y: frame.startY * parent.height
        width: frame.kept.width * parent.width
        height: frame.kept.height * parent.height
        color: "transparent"
        border.width: 2
        border.color: Theme.secondaryColor
    }
    Repeater {
        model: [Words.pictureUpperLeft, Words.pictureUpperRight, Words.pictureLowerLeft, Words.pictureLowerRight]
        delegate: FocusScope {
            id: corner
            required property string modelData
            required property int index
            readonly property bool atRight: index % 2 === 1
            readonly property bool atBottom: index > 1
            readonly property real place: atRight ? frame.endX : frame.startX
            readonly property real level: atBottom ? frame.endY : frame.startY

            // Along its diagonal, outwards for what is more than 0.
            function widen(by: real) { moveBy(atRight ? by : -by, atBottom ? by : -by) }
            function moveBy(across: real, down: real) { frame.moveCorner(atRight, atBottom, place + across, level + down) }

            x: place * frame.width - width / 2
            y: level * frame.height - height / 2
            width: Theme.target
            height: Theme.target
            activeFocusOnTab: true
            Accessible.role: Accessible.Slider
            Accessible.name: modelData
            Accessible.focusable: true
            Accessible.onIncreaseAction: widen(frame.step)
            Accessible.onDecreaseAction: widen(-frame.step)
            Keys.onLeftPressed: moveBy(-frame.step, 0)
            Keys.onRightPressed: moveBy(frame.step, 0)
            Keys.onUpPressed: moveBy(0, -frame.step)
            Keys.onDownPressed: moveBy(0, frame.step)
            Rectangle {
                anchors.centerIn: parent
                width: corner.activeFocus ? 22 : 16
                height: width
                radius: width / 2
                color: Theme.whiteColor
                border.width: 3
                border.color: corner.activeFocus ? Theme.blackColor : Theme.secondaryColor
            }
            DragHandler {
                target: null
                onCentroidChanged: if (active) {
                    const point = frame.mapFromItem(corner, centroid.position.x, centroid.position.y)
                    frame.moveCorner(corner.atRight, corner.atBottom, point.x / frame.width, point.y / frame.height)
                }
            }
        }
    }
}
