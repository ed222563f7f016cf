import QtQuick
import Ombrivane

// What may be carried along: an icon and a weight.
Row {
    id: allowance

    required property string iconName
    required property string text
    property bool awaited: false

    spacing: 4
    Icon {
        width: 18
        height: 18
        anchors.verticalCenter: parent.verticalCenter
        name: allowance.iconName
        color: Theme.placeHolderColor
    }
    CardText {
        awaited: allowance.awaited
        text: allowance.text
        tint: Theme.placeHolderColor
        font.pixelSize: Theme.captionSize
    }
}
