import QtQuick
import Ombrivane

// The time that the price is held; in the last minute in the accent, announced once.
Rectangle {
    id: pill

    required property string time
    required property string label
    required property bool lastMinute
    readonly property color tint: lastMinute ? Theme.primaryColor : Theme.secondaryColor

    implicitWidth: row.implicitWidth + 24
    implicitHeight: row.implicitHeight + 12
    radius: height / 2
    color: Theme.whiteColor
    border.width: 1
    border.color: tint
    Accessible.role: lastMinute ? Accessible.AlertMessage : Accessible.StaticText
    Accessible.name: lastMinute ? qsTr("Less than a minute left for confirmation") : label

    Row {
        id: row
        anchors.centerIn: parent
        spacing: 8
        Icon {
            width: 18
            height: 18
            anchors.verticalCenter: parent.verticalCenter
            name: "clockIcon"
            color: pill.tint
        }
        PlainText {
            objectName: "clock"
            text: pill.time
            color: pill.tint
            font.weight: Font.DemiBold
            lineHeight: 1.1
            Accessible.ignored: true
        }
        PlainText {
            text: pill.label
            color: Theme.placeHolderColor
            font.pixelSize: Theme.captionSize
            lineHeight: 1.1
            anchors.verticalCenter: parent.verticalCenter
            Accessible.ignored: true
        }
    }
}
