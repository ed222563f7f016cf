import QtQuick
import QtQuick.Layouts
import Ombrivane

// An icon, what is told, and its value.
RowLayout {
    id: line

    property string iconName: ""
    property string label: ""
    property string value: ""

    spacing: 10
    Icon {
        visible: line.iconName !== ""
        implicitWidth: 22
        implicitHeight: 22
        name: line.iconName
        color: Theme.placeHolderColor
    }
    PlainText {
        Layout.fillWidth: true
        text: line.label
        color: Theme.placeHolderColor
    }
    PlainText {
        Layout.maximumWidth: line.width * 0.6
        text: line.value
        horizontalAlignment: Text.AlignRight
        font.weight: Font.Medium
    }
}
