import QtQuick
import QtQuick.Layouts
import Ombrivane

// The first screen: title bar, tab bar and the form of the chosen tab.
Item {
    id: page

    required property MainViewAdapter screen

    Rectangle { anchors.fill: parent; color: Theme.canvasColor }
    Icon {
        x: -Theme.safeLeft
        y: -Theme.safeTop
        width: parent.width + Theme.safeLeft + Theme.safeRight
        height: width * 360 / 640
        name: "cloudBackground"
        dark: Theme.dark
    }
    PageHeader {
        id: header
        width: parent.width
        title: page.screen.title
        onLeave: page.screen.back()
    }
    Flickable {
        anchors { top: header.bottom; left: parent.left; right: parent.right; bottom: parent.bottom }
        contentHeight: column.implicitHeight + 2 * Theme.margin
        clip: true
        ColumnLayout {
            id: column
            x: (parent.width - width) / 2
            y: Theme.margin / 2
            width: Math.min(page.width - 2 * Theme.margin, Theme.contentWidth)
            spacing: Theme.margin
            TabBar {
                Layout.fillWidth: true
                screen: page.screen
            }
            SearchFormCard {
                Layout.fillWidth: true
                screen: page.screen.tab === 1 ? page.screen.roundTrip : page.screen.oneWay
            }
            Footer {
                Layout.fillWidth: true
                Layout.topMargin: Theme.margin
                screen: page.screen.footer
            }
        }
    }
}
