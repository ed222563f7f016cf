import QtQuick
import Ombrivane.Private

// The choice of an airport, for the origin and for the destination.
Item {
    id: page

    required property AirportSearchAdapter screen
    // A keyboard leaves little more than the field: the rest of it is the list's.
    readonly property bool cramped: height < 300

    Rectangle { anchors.fill: parent; color: Theme.canvasColor }
    PageHeader {
        id: header
        width: parent.width
        iconName: "crossIcon"
        leaveLabel: Words.close
        title: page.screen.placeholder
        scrolled: page.cramped ? height : 0
        onLeave: page.screen.close()
    }
    Item {
        anchors { top: header.bottom; bottom: parent.bottom; horizontalCenter: parent.horizontalCenter }
        width: Math.min(parent.width - 2 * Theme.margin, Theme.contentWidth)
        SearchField {
            id: field
            objectName: "search"
            width: parent.width
            focus: true
            placeholder: page.screen.placeholder
            text: page.screen.typed
            onTextEdited: page.screen.type(text)
            onAccepted: list.goTo(0)
            Keys.onDownPressed: list.goTo(list.currentIndex)
        }
        ProgressLine {
            anchors { top: field.bottom; topMargin: 6; left: parent.left; right: parent.right }
            visible: patience.over
            label: Words.loading
        }
        // An answer that comes at once wants no sign of having been awaited.
        Delay {
            id: patience
            property bool over: false
            interval: 500
            running: page.screen.isLoading && list.count > 0
            onRunningChanged: over = false
            onTriggered: over = true
        }
        Column {
            id: told
            anchors { top: field.bottom; topMargin: Theme.margin; left: parent.left; right: parent.right }
            spacing: 8
            Notice {
                width: parent.width
                message: page.screen.errorMessage
            }
            Notice {
                width: parent.width
                iconName: "searchIcon"
                message: page.screen.nothingText
            }
            PlainText {
                width: parent.width
                visible: page.screen.showsHeading && !page.cramped
                text: page.screen.heading
                font.pixelSize: Theme.sectionSize
                font.weight: Font.Medium
                Accessible.role: Accessible.Heading
            }
            Repeater {
                model: page.screen.isLoading && list.count === 0 && page.screen.nothingText === "" ? 6 : 0
                Rectangle {
                    objectName: "awaited"
                    width: told.width
                    height: shape.implicitHeight + 20
                    radius: Theme.fieldRadius
                    color: Theme.whiteColor
                    AwaitedText {
                        id: shape
                        anchors { left: parent.left; leftMargin: 14; right: parent.right; rightMargin: 14; verticalCenter: parent.verticalCenter }
                        lines: [0.45, 0.7]
                    }
                }
            }
        }
        KeyList {
            id: list
            anchors { top: told.bottom; topMargin: 8; bottom: parent.bottom; left: parent.left; right: parent.right }
            clip: true
            spacing: 8
            // None ahead of those in sight: the toolkit complains of a row that is being made while an answer takes it away.
            cacheBuffer: 0
            model: page.screen.rows
            Accessible.name: page.screen.heading
            delegate: AirportRow {
                width: list.width
                sought: page.screen.answered
            }
        }
    }
}
