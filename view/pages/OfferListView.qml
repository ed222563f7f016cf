import QtQuick
import Ombrivane

// The offers of one direction, with the strip of airlines above them.
ResultsContent {
    id: page

    required property OfferListAdapter screen

    readonly property real contentMargin: Math.max(Theme.margin, (width - Theme.contentWidth) / 2)

    offset: list.contentY - list.originY + list.topMargin

    function showTop() {
        scroll.stop()
        list.pinned = false
        scroll.from = list.contentY
        scroll.to = list.originY - list.topMargin
        scroll.duration = Theme.pageDuration
        scroll.start()
    }
    function showOffer(position: int) {
        const here = list.contentY
        list.pinned = false
        list.positionViewAtIndex(position, ListView.Beginning)
        const there = Math.max(list.originY - list.topMargin, list.contentY - page.collapsedInset - Theme.gap)
        list.contentY = here
        scroll.stop()
        scroll.from = here
        scroll.to = there
        scroll.duration = Theme.reducedMotion ? 0 : 2000
        scroll.start()
    }

    ListView {
        id: list
        objectName: "offers"
        anchors.fill: parent
        // Until the customer scrolls, the list stays at its top while header, strip and insets take their places.
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
            ListView {
                id: strip
                objectName: "strip"
                visible: page.screen.strip.count > 0
                width: parent.width
                height: Math.max(Theme.target, 36 * Theme.textScale + 28)
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
            held: row
            width: list.width
            height: card.implicitHeight
            OfferCard {
                id: card
                x: page.contentMargin
                width: parent.width - 2 * x
                height: implicitHeight
                row: place.row
            }
        }
        onOriginYChanged: pin()
        onTopMarginChanged: pin()
        onContentHeightChanged: pin()
        onMovementStarted: pinned = false
        onMovementEnded: pinned = atYBeginning
    }
    Timer {
        id: arrival
        interval: 300
        running: !page.screen.isLoading
    }
    NumberAnimation {
        id: scroll
        target: list
        property: "contentY"
        onFinished: {
            list.pinned = list.atYBeginning
            if (page.screen.scrollToTop) page.screen.arrivedAtTop()
        }
    }
    Connections {
        target: page.screen
        function onScrollToTopChanged() { if (page.screen.scrollToTop) page.showTop() }
        function onScrollToIdChanged() { page.showOffer(page.screen.rows.positionOf(page.screen.scrollToId)) }
    }
}
