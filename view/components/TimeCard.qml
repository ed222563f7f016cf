import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Ombrivane

// One choice of a departure time.
T.AbstractButton {
    id: card

    required property TimeCardAdapter row

    implicitHeight: line.implicitHeight + 24
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.RadioButton
    Accessible.name: row.title
    Accessible.description: row.subTitle
    Accessible.checkable: true
    Accessible.checked: row.isSelected
    onClicked: row.tap()
    Keys.onReturnPressed: card.clicked()
    Keys.onEnterPressed: card.clicked()

    background: Rectangle {
        radius: Theme.fieldRadius
        color: card.row.isSelected ? Theme.calenderRangeColor : card.down ? Theme.segmentColor : Theme.whiteColor
        border.width: card.row.isSelected || card.visualFocus ? 2 : 1
        border.color: card.visualFocus ? Theme.blackColor : card.row.isSelected ? Theme.secondaryColor : Theme.formBorderColor
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
