import QtQuick
import Ombrivane.Private

// One entry of a wheel, which reads it out as a whole.
PlainText {
    required property string modelData
    required property int index
    property bool chosen: false
    signal tapped

    text: modelData
    color: chosen ? Theme.blackColor : Theme.placeHolderColor
    font.weight: chosen ? Font.DemiBold : Font.Normal
    spread: 1
    wrapMode: Text.NoWrap
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    Accessible.ignored: true

    TapHandler { onTapped: parent.tapped() }
}
