import QtQuick
import Ombrivane.Private

// One airport: city and country, code, name.
ListEntry {
    id: item

    required property AirportRowAdapter row
    // What the customer typed: its letters stand out.
    property string sought: ""

    objectName: "row"
    implicitHeight: texts.implicitHeight + 20
    Accessible.name: row.mainText + ", " + row.name + ", " + row.code
    onClicked: row.tap()

    background: Rectangle {
        radius: Theme.fieldRadius
        color: item.down ? Theme.segmentColor : Theme.whiteColor
    }
    contentItem: Item {
        Column {
            id: texts
            anchors { left: parent.left; leftMargin: 14; right: code.left; rightMargin: 8; verticalCenter: parent.verticalCenter }
            FoundText { width: parent.width; text: item.row.mainText; sought: item.sought; font.weight: Font.Medium }
            FoundText {
                width: parent.width
                text: item.row.name
                sought: item.sought
                color: Theme.placeHolderColor
                font.pixelSize: Theme.captionSize
            }
        }
        FoundText {
            id: code
            sought: item.sought
            anchors { right: parent.right; rightMargin: 14; verticalCenter: parent.verticalCenter }
            text: item.row.code
            font.weight: Font.DemiBold
            color: Theme.blackColor
        }
    }
}
