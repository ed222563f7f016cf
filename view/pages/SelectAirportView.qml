import QtQuick
import Ombrivane

// The choice of an airport, for the origin and for the destination.
Item {
    id: page

    required property AirportSearchAdapter screen

    Rectangle { anchors.fill: parent; color: Theme.canvasColor }
    PageHeader {
        id: header
        width: parent.width
        iconName: "crossIcon"
        leaveLabel: Words.close
        title: page.screen.placeholder
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
            onTextEdited: page.screen.type(text)
        }
        PlainText {
            id: heading
            anchors { top: field.bottom; topMargin: Theme.margin }
            width: parent.width
            text: page.screen.heading
            font.pixelSize: Theme.sectionSize
            font.weight: Font.Medium
        }
        ListView {
            id: list
            anchors { top: heading.bottom; topMargin: 8; bottom: parent.bottom; left: parent.left; right: parent.right }
            clip: true
            spacing: 8
            model: page.screen.rows
            delegate: AirportRow {
                width: list.width
            }
        }
    }
}
