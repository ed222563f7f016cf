import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// What narrows a result list; nothing is filtered before it is applied.
Sheet {
    id: page

    required property FilterAdapter screen
    signal back

    name: page.screen.title
    beside: width >= Theme.wideWidth
    ground: Theme.filterBackgroundColor
    wantedHeight: Math.min(height * 0.9, head.height + column.implicitHeight + apply.height + 4 * Theme.margin)
    onDismissed: back()

    Item {
        id: head
        anchors { left: parent.left; right: parent.right; leftMargin: Theme.margin; rightMargin: Theme.margin }
        height: Math.max(Theme.target, title.implicitHeight + 8, reset.implicitHeight)
        PlainText {
            id: title
            anchors { left: parent.left; right: reset.left; rightMargin: 8; verticalCenter: parent.verticalCenter }
            text: page.screen.title
            font.pixelSize: Theme.titleSize
            font.weight: Font.DemiBold
            spread: 1.1
            Accessible.role: Accessible.Heading
        }
        PillButton {
            id: reset
            objectName: "resetAll"
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            width: Math.min(implicitWidth, parent.width * 0.45)
            text: page.screen.resetText
            onClicked: page.screen.resetAll()
        }
    }
    Flickable {
        anchors { top: head.bottom; topMargin: 8; bottom: apply.top; bottomMargin: Theme.gap; left: parent.left; right: parent.right; leftMargin: Theme.margin; rightMargin: Theme.margin }
        contentHeight: column.implicitHeight
        clip: true
        ColumnLayout {
            id: column
            width: parent.width
            spacing: 4
            PlainText { Layout.fillWidth: true; text: page.screen.priceTitle; font.pixelSize: Theme.sectionSize; font.weight: Font.Medium; Accessible.role: Accessible.Heading }
            PlainText {
                objectName: "priceRange"
                Layout.fillWidth: true
                text: page.screen.priceRange
                color: Theme.placeHolderColor
                font.pixelSize: Theme.captionSize
            }
            PriceSlider {
                objectName: "price"
                Layout.fillWidth: true
                label: page.screen.priceTitle
                valueText: page.screen.chosenPrice
                from: page.screen.minPrice
                to: page.screen.maxPrice
                value: page.screen.price
                onMoved: page.screen.slide(value)
            }
            PlainText {
                objectName: "chosenPrice"
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignRight
                text: page.screen.chosenPrice
                color: Theme.blackColor
                font.weight: Font.Medium
            }
            PlainText { Layout.fillWidth: true; Layout.topMargin: Theme.gap; text: page.screen.airlinesTitle; font.pixelSize: Theme.sectionSize; font.weight: Font.Medium; Accessible.role: Accessible.Heading }
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 4
                Accessible.role: Accessible.Grouping
                Accessible.name: page.screen.airlinesTitle
                Repeater {
                    model: page.screen.airlines
                    RadioRow { Layout.fillWidth: true }
                }
            }
            PlainText { Layout.fillWidth: true; Layout.topMargin: Theme.gap; text: page.screen.timeTitle; font.pixelSize: Theme.sectionSize; font.weight: Font.Medium; Accessible.role: Accessible.Heading }
            GridLayout {
                Layout.fillWidth: true
                columns: parent.width < 220 * Theme.textScale ? 1 : 2
                columnSpacing: 8
                rowSpacing: 8
                Accessible.role: Accessible.Grouping
                Accessible.name: page.screen.timeTitle
                Repeater {
                    model: page.screen.times
                    TimeCard {
                        Layout.fillWidth: true
                        Layout.preferredWidth: 1
                        Layout.fillHeight: true
                    }
                }
            }
        }
    }
    MainButton {
        id: apply
        objectName: "apply"
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Theme.margin }
        text: page.screen.applyText
        onClicked: page.screen.apply()
    }
}
