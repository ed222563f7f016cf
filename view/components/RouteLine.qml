import QtQuick
import Ombrivane.Private

// Two cities and the picture between them, in as many lines as they need.
Flow {
    id: route

    required property string origin
    required property string destination
    property string iconName: "toIcon"
    property real iconSize: 22
    property color tint: Theme.blackColor
    property int pixelSize: Theme.bodySize
    property int weight: Font.Medium
    // Whoever holds it tells assistive technology of it.
    property bool toldAsOne: false

    spacing: 8

    component City: PlainText {
        width: implicitWidth > route.width ? route.width : undefined
        font.pixelSize: route.pixelSize
        font.weight: route.weight
        spread: 1.2
        Accessible.ignored: route.toldAsOne
    }
    City { id: first; objectName: "routeOrigin"; text: route.origin }
    // In the middle of a line of letters, however many lines the city has.
    Icon { width: route.iconSize; height: Math.max(route.iconSize, first.height / Math.max(1, first.lineCount)); name: route.iconName; color: route.tint }
    City { objectName: "routeDestination"; text: route.destination }
}
