import QtQuick
import Ombrivane

// The plane on its line: straight for a direct flight, dotted for a connection.
Item {
    property alias lineImage: line.name

    implicitWidth: 120
    implicitHeight: 24

    Icon {
        id: line
        anchors.fill: parent
        color: Theme.formBorderColor
    }
    Icon {
        anchors.centerIn: parent
        width: 20
        height: 20
        name: "segmentPlane"
        color: Theme.secondaryColor
    }
}
