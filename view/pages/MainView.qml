import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// The first screen: title bar, tab bar and the form of the chosen tab. Where there is width, from where and to where stand
// beside when and for whom.
Item {
    id: page

    required property MainViewAdapter screen

    readonly property SearchFormAdapter form: screen.tab === 1 ? screen.roundTrip : screen.oneWay
    readonly property bool twoColumns: width >= Theme.wideWidth || width > height && width >= 560 * Theme.textScale

    // A search that was refused for missing fields leads to the first of them, once its alert has gone.
    function search() {
        form.search()
        const missing = places.firstMissing() ?? trip.firstMissing()
        if (missing === null) return
        missing.focus = true
        area.reveal(missing)
    }

    Rectangle { anchors.fill: parent; color: Theme.canvasColor }
    Icon {
        // Its plane flies free of the cards.
        x: -Theme.safeLeft
        y: (page.twoColumns ? header.height / 2 - 0.148 * width : 0) - Theme.safeTop
        width: parent.width + Theme.safeLeft + Theme.safeRight
        height: width * 360 / 640
        name: "cloudBackground"
        color: Theme.secondaryColor
        ground: Theme.canvasColor
    }
    PageHeader {
        id: header
        width: parent.width
        title: page.screen.title
        onLeave: page.screen.back()
    }
    Flickable {
        id: area

        // What the foot lies over of the form, in points.
        readonly property real coveredBottom: foot.visible ? foot.height : 0

        function reveal(item: Item) {
            const place = item.mapToItem(contentItem, 0, 0).y
            const end = contentY + height - coveredBottom
            if (place < contentY + Theme.gap) contentY = Math.max(0, place - Theme.gap)
            else if (place + item.height > end) contentY += place + item.height + Theme.gap - end
        }

        anchors { top: header.bottom; left: parent.left; right: parent.right; bottom: parent.bottom }
        contentHeight: column.implicitHeight + column.y + Theme.margin
        clip: true

        GridLayout {
            id: column
            x: (parent.width - width) / 2
            y: Theme.margin / 2
            width: Math.min(page.width - 2 * Theme.margin, page.twoColumns ? Theme.wideWidth : Theme.contentWidth)
            columns: page.twoColumns ? 2 : 1
            columnSpacing: Theme.margin
            rowSpacing: Theme.gap
            ColumnLayout {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: 1
                spacing: page.twoColumns ? Theme.gap : Theme.margin
                TabBar {
                    Layout.fillWidth: true
                    screen: page.screen
                }
                PlacesCard {
                    id: places
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    screen: page.form
                }
            }
            ColumnLayout {
                id: rest
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                spacing: Theme.gap
                TripFields {
                    id: trip
                    Layout.fillWidth: true
                    screen: page.form
                }
                // The button's place below the fields; where that is out of the window, the button stands at the foot.
                Item {
                    id: place
                    readonly property real lift: Math.max(0, column.y + rest.y + y + height + Theme.gap - area.contentY - area.height)
                    z: 1
                    Layout.fillWidth: true
                    implicitHeight: button.implicitHeight
                    Rectangle {
                        id: foot
                        objectName: "foot"
                        visible: place.lift > 0
                        x: -column.x - rest.x
                        y: -place.lift - Theme.gap
                        width: area.width
                        height: place.height + 2 * Theme.gap
                        color: Theme.whiteColor
                        Blocker { anchors.fill: parent }
                        Rectangle { width: parent.width; height: 1; color: Theme.hairlineColor }
                    }
                    MainButton {
                        id: button
                        objectName: "search"
                        y: -place.lift
                        width: parent.width
                        text: Words.searchFlights
                        iconName: "paperPlaneIcon"
                        onClicked: page.search()
                    }
                }
            }
            Footer {
                Layout.fillWidth: true
                Layout.columnSpan: column.columns
                Layout.topMargin: Theme.margin
                screen: page.screen.footer
            }
        }
    }
}
