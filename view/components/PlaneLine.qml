import QtQuick
import Ombrivane

// The plane on its line: straight for a direct flight, dotted for a connection.
Item {
    id: line

    required property string lineImage

    implicitWidth: 120
    implicitHeight: 24

    Icon {
        anchors.fill: parent
        name: line.lineImage
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
