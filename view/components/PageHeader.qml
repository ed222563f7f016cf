import QtQuick
import Ombrivane.Private

// A control that leaves, and the title. One that takes much of its page goes away as the page is `scrolled`.
Rectangle {
    id: header

    property string title: ""
    // A route is drawn in place of the title, which says it in words.
    property string origin: ""
    property string destination: ""
    readonly property bool isRoute: origin !== "" && destination !== ""
    property string iconName: "arrowLeftIcon"
    property string leaveLabel: Words.back
    // Of the content that passes under it, in points. On a page that a keyboard leaves little of, no header stays.
    property real scrolled: 0
    readonly property bool goesAway: height > Theme.tallHeader || parent !== null && parent.height < 300
    signal leave

    color: "transparent"
    y: goesAway ? -Math.max(0, Math.min(height, scrolled)) : 0
    implicitHeight: Math.max(56, (isRoute ? route : text).implicitHeight + 16)

    // What leaves the page is not drawn under a notch on its way.
    opacity: goesAway ? 1 - Math.max(0, Math.min(1, scrolled / height)) : 1

    Blocker { anchors.fill: parent }
    WayBack { enabled: button.visible; onTaken: header.leave() }
    IconButton {
        id: button
        objectName: "leave"
        anchors { left: parent.left; leftMargin: 4; verticalCenter: parent.verticalCenter }
        iconName: header.iconName
        label: header.leaveLabel
        onClicked: header.leave()
    }
    PlainText {
        id: text
        objectName: "title"
        anchors { left: button.right; leftMargin: 4; right: parent.right; rightMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        text: header.title
        font.pixelSize: Theme.titleSize
        font.weight: Font.DemiBold
        spread: 1.2
        visible: !header.isRoute
        Accessible.role: Accessible.Heading
    }
    RouteLine {
        id: route
        objectName: "route"
        visible: header.isRoute
        anchors { left: text.left; right: text.right; verticalCenter: parent.verticalCenter }
        origin: header.origin
        destination: header.destination
        tint: Theme.secondaryColor
        pixelSize: Theme.titleSize
        weight: Font.DemiBold
        toldAsOne: true
        Accessible.role: Accessible.Heading
        Accessible.name: header.title
    }
}
