import QtQuick
import Ombrivane.Private

// The mark of an airline; a plane stands in its place until it has arrived.
Item {
    id: logo

    property alias url: picture.url
    property real size: 28

    implicitWidth: size
    implicitHeight: size

    Rectangle {
        anchors.fill: parent
        visible: !picture.loaded
        radius: 8
        color: Theme.segmentColor
        Icon {
            anchors.centerIn: parent
            width: parent.width * 0.6
            height: width
            name: "planeIcon"
            color: Theme.placeHolderColor
        }
    }
    Picture {
        id: picture
        anchors.fill: parent
    }
}
