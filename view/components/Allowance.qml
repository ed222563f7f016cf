import QtQuick
import Ombrivane.Private

// What may be carried along: an icon and a weight.
Row {
    property alias iconName: icon.name
    property alias text: weight.text

    spacing: 2
    Icon {
        id: icon
        y: Math.round((parent.height - height) / 2)
        width: 14
        height: 14
        color: Theme.placeHolderColor
    }
    CardText {
        id: weight
        color: Theme.placeHolderColor
        font.pixelSize: Theme.smallSize
    }
}
