import QtQuick
import Ombrivane

// What both result lists share: header, the part that changes, the floating controls, the total and the message.
FocusScope {
    id: page

    required property ResultsAdapter results
    default property alias tabs: header.tabs
    readonly property real footShown: foot.arrival * foot.height
    // A wide window moves the list aside for its filter.
    readonly property bool besideFilter: width >= Theme.wideWidth && results.showFilterBottomSheet

    readonly property bool cramped: height < 560 * Math.min(1.5, Theme.textScale)

    function showContent() { content.setSource(results.contentPage, {"screen": results.content, "results": results}) }

    Component.onCompleted: showContent()

    Rectangle { anchors.fill: parent; color: Theme.canvasColor }
    Connections {
        target: page.results
        function onContentChanged() { page.showContent() }
    }
    Binding { target: content.shown; when: content.shown !== null; property: "topInset"; value: header.fullHeight }
    Binding { target: content.shown; when: content.shown !== null; property: "collapsedInset"; value: header.collapsedHeight }
    Binding {
        target: content.shown
        when: content.shown !== null
        property: "bottomInset"
        value: page.footShown + (floating.visible && !floating.beside ? floating.height + Theme.gap : 0)
    }
    Item {
        anchors { left: parent.left; leftMargin: page.besideFilter ? Theme.besideWidth : 0; right: parent.right; top: parent.top; bottom: parent.bottom }

        // First, as it is read and walked through first, and over what passes under it.
        ResultsHeader {
            id: header
            z: 1
            width: parent.width
            screen: page.results
            cramped: page.cramped
        }
        Loader {
            id: content
            readonly property ResultsContent shown: item as ResultsContent
            anchors.fill: parent
            clip: true
            focus: true
        }
        // Never over a price or an arrival, which stand at the end of each card: beside the cards where there is room, else
        // in the middle, where a card has its plane; with large letters in a bar of their own.
        Rectangle {
            id: floating
            z: 1
            readonly property real sideRoom: (parent.width - Theme.contentWidth) / 2
            readonly property bool beside: sideRoom >= buttons.width + 2 * Theme.gap
            readonly property bool docked: parent.width < 300 * Theme.textScale
            objectName: "floatingBar"
            // A bar of its own gives way to the total: both would leave nothing of the list.
            visible: page.results.showsFloatingBar && !(docked && page.results.showContinueButton)
            anchors.right: beside ? parent.right : undefined
            anchors.rightMargin: sideRoom - width - Theme.gap
            anchors.horizontalCenter: beside ? undefined : parent.horizontalCenter
            anchors.bottom: parent.bottom
            anchors.bottomMargin: page.footShown + (docked ? 0 : Theme.gap)
            width: docked ? parent.width : buttons.width
            height: docked ? buttons.height + 8 : buttons.height
            color: docked ? Theme.canvasColor : "transparent"
            Rectangle { visible: floating.docked; width: parent.width; height: 1; color: Theme.hairlineColor }
            Grid {
                id: buttons
                anchors.centerIn: parent
                columns: floating.docked ? 2 : 1
                spacing: 8
                FloatingButton {
                    objectName: "scrollUp"
                    visible: page.results.showsScrollUp
                    iconName: "scrollupIcon"
                    label: Words.resultsBackToTop
                    onClicked: page.results.scrollUp()
                }
                FloatingButton {
                    objectName: "filter"
                    visible: page.results.showsFloatingBar
                    iconName: "filterIcon"
                    label: page.results.filterIsOn ? Words.filterIsOn : Words.filterIsOff
                    on: page.results.filterIsOn
                    onClicked: page.results.openFilter()
                }
            }
        }
        FootBar {
            id: foot
            objectName: "total"
            z: 2
            terse: page.cramped
            property real arrival: page.results.showContinueButton ? 1 : 0
            y: parent.height - page.footShown
            width: parent.width
            visible: arrival > 0
            label: page.results.totalLabel
            value: page.results.total
            emphasised: true
            action: page.results.continueText
            actionIcon: "toIcon"
            onClicked: page.results.proceed()
            Behavior on arrival { NumberAnimation { duration: Theme.pageDuration; easing.type: Easing.OutCubic } }
        }
        WaitPanel {
            z: 1
            anchors { bottom: parent.bottom; bottomMargin: Theme.margin; horizontalCenter: parent.horizontalCenter }
            width: Math.min(parent.width - 2 * Theme.margin, Theme.contentWidth)
            text: page.results.waitText
            hint: page.results.waitHint
        }
        SnackBar {
            z: 2
            anchors {
                bottom: parent.bottom
                bottomMargin: page.footShown + Theme.gap
                horizontalCenter: parent.horizontalCenter
            }
            width: Math.min(parent.width - 2 * Theme.margin, Theme.contentWidth)
            message: page.results.errorMessage
            detail: page.results.errorDetail
            shown: page.results.showSnackBar
        }
    }
    Keys.onEscapePressed: page.results.back()
}
