import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// Over a result list: the route, which goes away as the list is scrolled, and the dates, which stay.
Rectangle {
    id: header

    objectName: "resultsHeader"

    required property ResultsAdapter screen
    default property alias tabs: column.data
    // On a page with little height the dates go with the route, and everything below the route is one row if it can.
    property bool cramped: false
    readonly property bool inOneRow: cramped && width >= 700 * Theme.textScale
    readonly property real fullHeight: route.height + dates.height
    readonly property real collapsedHeight: cramped ? 0 : dates.height
    property real collapse: screen.showActionBar ? 0 : 1

    height: fullHeight - collapse * (fullHeight - collapsedHeight)
    color: Theme.canvasColor
    clip: true

    Behavior on collapse { NumberAnimation { duration: Theme.stateDuration; easing.type: Easing.OutCubic } }

    Blocker { anchors.fill: parent }
    WayBack { onTaken: header.screen.back() }
    Item {
        id: route
        y: -header.collapse * height
        width: parent.width
        height: Math.max(64, texts.implicitHeight + 16)
        enabled: header.collapse === 0
        opacity: 1 - header.collapse
        IconButton {
            id: back
            objectName: "back"
            anchors { left: parent.left; leftMargin: 4; verticalCenter: parent.verticalCenter }
            iconName: "arrowLeftIcon"
            label: Words.back
            onClicked: header.screen.back()
        }
        Column {
            id: texts
            anchors { left: back.right; leftMargin: 4; right: edit.left; rightMargin: 4; verticalCenter: parent.verticalCenter }
            RouteLine {
                width: parent.width
                origin: header.screen.departCity
                destination: header.screen.destCity
                iconName: header.screen.routeImage
                iconSize: 20
                tint: Theme.secondaryColor
                pixelSize: Theme.sectionSize
                weight: Font.DemiBold
            }
            PlainText {
                width: parent.width
                text: header.screen.headerSubtitle
                color: Theme.placeHolderColor
                font.pixelSize: Theme.captionSize
                spread: 1.2
            }
        }
        Icon { anchors.fill: edit; name: "editIconHolder"; color: Theme.blackColor }
        IconButton {
            id: edit
            objectName: "edit"
            anchors { right: parent.right; rightMargin: Theme.gap; verticalCenter: parent.verticalCenter }
            iconName: "editIcon"
            label: Words.resultsEditSearch
            onClicked: header.screen.edit()
        }
    }
    Item {
        id: dates
        anchors.top: route.bottom
        width: parent.width
        height: column.implicitHeight + 12
        enabled: header.height > header.collapsedHeight || !header.cramped
        GridLayout {
            id: column
            y: 4
            anchors.horizontalCenter: parent.horizontalCenter
            width: header.inOneRow ? parent.width - 2 * Theme.margin : Math.min(parent.width - 2 * Theme.margin, Theme.contentWidth)
            columns: header.inOneRow ? 2 : 1
            columnSpacing: 8
            rowSpacing: 8
            GridLayout {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                columns: header.width < 380 * Theme.textScale ? 1 : 2
                columnSpacing: 8
                rowSpacing: 8
                DateStepper {
                    objectName: "departure"
                    Layout.fillWidth: true
                    Layout.preferredWidth: header.screen.showsReturnDate ? 1 : 1.3
                    iconName: "departureBlackIcon"
                    value: header.screen.departDateText
                    previousLabel: Words.resultsEarlierDeparture
                    nextLabel: Words.resultsLaterDeparture
                    onPrevious: header.screen.previousDeparture()
                    onNext: header.screen.nextDeparture()
                }
                DateStepper {
                    objectName: "return"
                    visible: header.screen.showsReturnDate
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    iconName: "returnBlackIcon"
                    value: header.screen.returnDateText
                    previousLabel: Words.resultsEarlierReturn
                    nextLabel: Words.resultsLaterReturn
                    onPrevious: header.screen.previousReturn()
                    onNext: header.screen.nextReturn()
                }
                PillButton {
                    objectName: "addReturnDate"
                    visible: !header.screen.showsReturnDate
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    iconName: "addIcon"
                    text: header.screen.addReturnDateText
                    onClicked: header.screen.addReturnDate()
                }
            }
        }
    }
    Rectangle { anchors.bottom: parent.bottom; width: parent.width; height: 1; color: Theme.hairlineColor; opacity: header.collapse }
}
