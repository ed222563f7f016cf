import QtQuick
import QtQuick.Templates as T
import Ombrivane

// One airport: city and country, code, name.
T.AbstractButton {
    id: item

    required property AirportRowAdapter row

    objectName: "row"
    implicitHeight: texts.implicitHeight + 20
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: row.mainText + ", " + row.name + ", " + row.code
    onClicked: row.tap()
    Keys.onReturnPressed: item.clicked()

    background: Rectangle {
        radius: Theme.fieldRadius
        color: item.down ? Theme.segmentColor : Theme.whiteColor
        border.width: item.visualFocus ? 2 : 0
        border.color: Theme.secondaryColor
    }
    contentItem: Item {
        Column {
            id: texts
            anchors { left: parent.left; leftMargin: 14; right: code.left; rightMargin: 8; verticalCenter: parent.verticalCenter }
            PlainText { width: parent.width; text: item.row.mainText; font.weight: Font.Medium; Accessible.ignored: true }
            PlainText {
                width: parent.width
                text: item.row.name
                color: Theme.placeHolderColor
                font.pixelSize: Theme.captionSize
                Accessible.ignored: true
            }
        }
        PlainText {
            id: code
            anchors { right: parent.right; rightMargin: 14; verticalCenter: parent.verticalCenter }
            text: item.row.code
            font.weight: Font.DemiBold
            color: Theme.secondaryColor
            Accessible.ignored: true
        }
    }
}
