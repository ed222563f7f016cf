import QtQuick
import Ombrivane.Private

// A finger that comes from the leading edge takes the page in front away, as the page's own control back does, and only
// while that control does. The page follows the finger.
Item {
    id: edge

    // What the page in front offers, asked for when a finger begins to move.
    property Item page: null
    property WayBack way: null
    // How far the page has gone, from 0 to 1.
    property real part: 0
    property real moved: 0
    // Of the page, in points.
    required property real span
    signal began

    function wayOf(item: Item): WayBack {
        if (item === null || !item.visible || !item.enabled) return null
        const own = item as WayBack
        if (own !== null) return own
        for (let i = 0; i < item.children.length; ++i) {
            const found = wayOf(item.children[i] as Item)
            if (found !== null) return found
        }
        return null
    }
    // Of `front`, a page that fills the stage and has another one below it.
    function begin(front: Item) {
        way = wayOf(front)
        page = way !== null ? front : null
        moved = 0
        part = 0
    }
    function follow(points: real) {
        moved = points
        if (page !== null && Theme.pageDuration > 0) part = Math.max(0, Math.min(1, points / span))
    }
    function end() {
        if (page === null) return
        ending.to = moved > 80 ? 1 : 0
        ending.start()
    }

    width: 20 + (Words.rightToLeft ? Theme.safeRight : Theme.safeLeft)

    DragHandler {
        acceptedDevices: PointerDevice.TouchScreen
        target: null
        yAxis.enabled: false
        enabled: !ending.running
        onActiveChanged: if (active) edge.began(); else edge.end()
        onCentroidChanged: if (active) edge.follow((Words.rightToLeft ? -1 : 1) * (centroid.scenePosition.x - centroid.scenePressPosition.x))
    }
    NumberAnimation {
        id: ending
        target: edge
        property: "part"
        duration: Theme.stateDuration
        easing.type: Easing.OutCubic
        onFinished: {
            if (to === 1 && edge.way !== null) edge.way.taken()
            edge.page = null
            edge.part = 0
        }
    }
}
