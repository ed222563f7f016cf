import QtQuick
import Ombrivane

// A control that leaves, and the title.
Item {
    id: header

    property string title: ""
    property string iconName: "arrowLeftIcon"
    property string leaveLabel: Words.back
    signal leave

    implicitHeight: Math.max(56, text.implicitHeight + 16)

    IconButton {
        id: button
        objectName: "leave"
        anchors { left: parent.left; leftMargin: 4; verticalCenter: parent.verticalCenter }
        iconName: header.iconName
        label: header.leaveLabel
        onClicked: header.leave()
    }
    PlainText {
        id: text
        objectName: "title"
        anchors { left: button.right; leftMargin: 4; right: parent.right; rightMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        text: header.title
        font.pixelSize: Theme.titleSize
        font.weight: Font.DemiBold
        spread: 1.2
        Accessible.role: Accessible.Heading
    }
}
