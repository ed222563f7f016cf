import QtQuick
import Ombrivane.Private

// The plane over its line, straight for a direct flight and dotted for a connection, with a mark for each connection.
Item {
    id: item

    property alias lineImage: line.name
    property int connections: 0

    implicitWidth: 120
    implicitHeight: 20

    Icon {
        id: line
        anchors.fill: parent
        color: Theme.formBorderColor
    }
    // Placed by their shares of the line.
    Repeater {
        model: item.connections
        Rectangle {
            required property int index
            objectName: "connection"
            anchors.left: parent.left
            anchors.leftMargin: (item.width - plane.width) * (index + 1) / (item.connections + 1) - width / 2
            anchors.verticalCenter: parent.verticalCenter
            width: 8
            height: 8
            radius: 4
            color: Theme.whiteColor
            border.width: 2
            border.color: Theme.blackColor
        }
    }
    Icon {
        id: plane
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        width: 18
        height: 18
        name: "segmentPlane"
        color: Theme.secondaryColor
    }
}
