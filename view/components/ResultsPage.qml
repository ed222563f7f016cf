import QtQuick
import Ombrivane.Private

// What both result lists share: header, the part that changes, the floating controls, the total and the message.
FocusScope {
    id: page

    required property ResultsAdapter results
    default property alias tabs: header.tabs
    // What the total is the sum of.
    property alias firstPart: foot.firstPart
    property alias secondPart: foot.secondPart
    readonly property real footShown: foot.arrival * foot.height
    // What the bars at the foot take of the list.
    readonly property real barsShown: footShown + (floating.visible && !floating.beside ? floating.height : 0)
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
        value: page.barsShown
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
        // Never over an offer: beside the cards where there is room, else in a bar of its own, or where two bars would leave
        // little of the list, in that of the total.
        Rectangle {
            id: floating
            z: 1
            readonly property real sideRoom: (parent.width - Theme.contentWidth) / 2
            readonly property bool beside: sideRoom >= 56 + 2 * Theme.gap
            readonly property bool inFoot: !beside && page.results.showContinueButton && page.height < 640 * Math.min(1.5, Theme.textScale)
            objectName: "floatingBar"
            visible: page.results.showsFloatingBar && !inFoot
            anchors.right: parent.right
            anchors.rightMargin: beside ? sideRoom - width - Theme.gap : 0
            anchors.bottom: parent.bottom
            anchors.bottomMargin: page.footShown + (beside ? Theme.gap : 0)
            width: beside ? buttons.width : parent.width
            height: buttons.height + (beside ? 0 : 8)
            color: beside ? "transparent" : Theme.canvasColor
            Blocker { anchors.fill: parent; visible: !floating.beside }
            Rectangle { visible: !floating.beside; width: parent.width; height: 1; color: Theme.hairlineColor }
        }
        Grid {
            id: buttons
            parent: floating.inFoot ? foot.leading : floating
            anchors { horizontalCenter: parent.horizontalCenter; verticalCenter: parent.verticalCenter }
            // In a bar the filter stays in the middle, whatever comes and goes beside it.
            anchors.horizontalCenterOffset: floating.beside || floating.inFoot || !scrollUp.visible ? 0 : -(scrollUp.width + spacing) / 2
            columns: floating.beside ? 1 : 2
            spacing: floating.inFoot ? 4 : 8
            FloatingButton {
                id: scrollUp
                objectName: "scrollUp"
                visible: page.results.showsScrollUp
                compact: !floating.beside
                iconName: "scrollupIcon"
                label: Words.resultsBackToTop
                onClicked: page.results.scrollUp()
            }
            FloatingButton {
                id: filter
                objectName: "filter"
                visible: page.results.showsFloatingBar
                compact: !floating.beside
                text: compact && !floating.inFoot ? Words.filterIsOff : ""
                iconName: "filterIcon"
                label: page.results.filterIsOn ? Words.filterIsOn : Words.filterIsOff
                on: page.results.filterIsOn
                onClicked: page.results.openFilter()
            }
        }
        FootBar {
            id: foot
            objectName: "total"
            z: 2
            terse: page.cramped
            leadingWidth: floating.inFoot ? buttons.width : 0
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
                bottomMargin: page.barsShown + Theme.gap
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
