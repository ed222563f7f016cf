import QtQuick
import Ombrivane.Private

// The offers of one direction, with the strip of airlines above them.
ResultsContent {
    id: page

    required property OfferListAdapter screen

    readonly property real contentMargin: Math.max(Theme.margin, (width - Theme.contentWidth) / 2)

    offset: list.contentY - list.originY + list.topMargin

    // The offer that a movement leads to, -1 for the head of the list.
    property int wanted: -1

    function stop() {
        movement.stop()
        if (page.screen.scrollToTop) page.screen.arrivedAtTop()
    }
    function moveTo(position: int, duration: int) {
        movement.stop()
        list.pinned = false
        page.wanted = position
        movement.start = list.contentY
        movement.duration = Theme.reducedMotion ? 0 : duration
        movement.restart()
    }
    // Where the list stands once the movement has arrived; it is only known when the offer is drawn, since offers above
    // it may be unfolded.
    function destination(): real {
        const top = list.originY - list.topMargin
        if (page.wanted < 0) return top
        const offer = list.itemAtIndex(page.wanted)
        const head = list.headerItem === null ? 0 : list.headerItem.height
        const rows = Math.max(1, list.count)
        const place = offer !== null ? offer.y : list.originY + head + page.wanted * (list.contentHeight - head) / rows
        const end = list.originY + list.contentHeight + list.bottomMargin - list.height
        return Math.max(top, Math.min(end, place - page.collapsedInset - Theme.gap))
    }
    function arrive() {
        if (page.wanted >= 0) list.positionViewAtIndex(page.wanted, ListView.Beginning)
        list.contentY = page.destination()
        list.forceLayout()
        list.contentY = page.destination()
        list.pinned = page.wanted < 0
        list.pin()
        page.stop()
    }
    // Other offers start at their head.
    function startAnew() {
        page.stop()
        if (!list.activeFocus) list.currentIndex = 0
        list.pinned = true
        list.pin()
    }

    KeyList {
        id: list
        objectName: "offers"
        coveredTop: page.collapsedInset
        coveredBottom: page.bottomInset
        Accessible.name: page.screen.title
        anchors.fill: parent
        // Until the customer scrolls or goes on by keys, the list stays at its top while header, strip and insets take their places.
        property bool pinned: true
        function pin() { if (pinned) contentY = originY - topMargin }
        topMargin: page.topInset
        bottomMargin: page.bottomInset + Theme.gap
        spacing: Theme.gap
        model: page.screen.rows
        reuseItems: true
        // A list that has come to rest makes rows ahead, which a movement then uses again. In a movement it is enough
        // that the next row is there when Tab leaves the last one.
        readonly property bool waits: page.screen.isLoading || arrival.running || !pinned
        cacheBuffer: waits ? Theme.target : height
        header: Column {
            width: list.width
            topPadding: 4
            bottomPadding: Theme.gap
            spacing: 8
            PlainText {
                objectName: "title"
                x: page.contentMargin
                width: parent.width - 2 * x
                text: page.screen.title
                font.pixelSize: Theme.sectionSize
                font.weight: Font.Medium
                Accessible.role: Accessible.Heading
            }
            KeyList {
                id: strip
                objectName: "strip"
                Accessible.name: Words.filterAirlines
                visible: page.screen.strip.count > 0
                width: parent.width
                height: Math.max(Theme.target, 36 * Theme.textScale + 28, currentItem?.implicitHeight ?? 0)
                leftMargin: page.contentMargin
                rightMargin: page.contentMargin
                orientation: ListView.Horizontal
                spacing: 8
                model: page.screen.strip
                delegate: StripCard { height: strip.height; awaited: page.screen.isLoading }
            }
        }
        delegate: RowHolder {
            id: place
            required property OfferAdapter row
            required property int index
            held: row
            width: list.width
            height: card.implicitHeight
            OfferCard {
                id: card
                x: page.contentMargin
                width: parent.width - 2 * x
                height: implicitHeight
                row: place.row
                focus: true
                atKeys: place.ListView.isCurrentItem
                onPressed: list.currentIndex = place.index
            }
        }
        onCurrentIndexChanged: if (activeFocus) pinned = currentIndex === 0
        onOriginYChanged: pin()
        onTopMarginChanged: pin()
        onContentHeightChanged: pin()
        onMovementStarted: {
            page.stop()
            pinned = false
        }
        onMovementEnded: pinned = atYBeginning
    }
    Delay {
        id: arrival
        interval: 300
        running: !page.screen.isLoading
    }
    NumberAnimation {
        id: movement
        property real start: 0
        property real progress: 0
        target: movement
        property: "progress"
        from: 0
        to: 1
        onProgressChanged: if (running) list.contentY = start + (page.destination() - start) * progress
        onFinished: page.arrive()
    }
    // A finger stops the movement, and no more: an offer that was passing by is not what it meant. It may go on to drag.
    MouseArea {
        parent: list.contentItem
        y: list.contentY
        z: 2
        width: list.width
        height: list.height
        enabled: movement.running || pressed
        Accessible.ignored: true
        onPressed: page.stop()
    }
    Connections {
        target: page.screen
        function onScrollToTopChanged() { if (page.screen.scrollToTop) page.moveTo(-1, Theme.pageDuration) }
        function onScrollToIdChanged() { page.moveTo(page.screen.rows.positionOf(page.screen.scrollToId), 2000) }
    }
    Connections {
        target: page.screen.rows
        function onDataChanged() { page.startAnew() }
        function onRowsInserted() { page.startAnew() }
        function onRowsRemoved() { page.startAnew() }
        function onRowsMoved() { page.startAnew() }
    }
}
