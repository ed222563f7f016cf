import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// One choice of a departure time.
MarkedRadio {
    id: card

    required property TimeCardAdapter row

    marked: row.isSelected
    implicitHeight: line.implicitHeight + 24
    Accessible.name: row.title
    Accessible.description: row.subTitle
    onClicked: row.tap()

    background: Rectangle {
        radius: Theme.fieldRadius
        color: card.row.isSelected ? Theme.calenderRangeColor : card.down ? Theme.segmentColor : Theme.whiteColor
        border.width: card.row.isSelected ? 2 : 1
        border.color: card.row.isSelected ? Theme.secondaryColor : Theme.formBorderColor
    }
    contentItem: Item {
        RowLayout {
            id: line
            anchors { left: parent.left; right: parent.right; margins: 12; verticalCenter: parent.verticalCenter }
            spacing: 10
            Icon {
                implicitWidth: 24
                implicitHeight: 24
                name: card.row.iconName
                color: card.row.isSelected ? Theme.secondaryColor : Theme.placeHolderColor
            }
            Column {
                Layout.fillWidth: true
                CardText { width: parent.width; text: card.row.title; font.weight: Font.Medium }
                CardText { width: parent.width; text: card.row.subTitle; color: Theme.placeHolderColor; font.pixelSize: Theme.captionSize }
            }
        }
    }
}
