import QtQuick
import Ombrivane.Private

// One kind of travellers with its stepper.
Item {
    id: item

    required property StepperAdapter row

    // Told once the customer has changed it.
    property bool isChanged: false
    readonly property string count: Words.fill(Words.fieldWithValue, {field: row.category, value: row.number})

    implicitHeight: Math.max(56, texts.implicitHeight + 8)

    Aloud { text: item.isChanged ? item.count : "" }

    Column {
        id: texts
        anchors { left: parent.left; right: minus.left; verticalCenter: parent.verticalCenter }
        PlainText { width: parent.width; text: item.row.category; font.weight: Font.Medium }
        PlainText {
            width: parent.width
            text: item.row.categoryDetail
            color: Theme.placeHolderColor
            font.pixelSize: Theme.captionSize
        }
    }
    IconButton {
        id: minus
        objectName: "decrement"
        anchors { right: number.left; verticalCenter: parent.verticalCenter }
        iconName: "decrementIcon"
        label: Words.fill(Words.travellersOneLess, {kind: item.row.category})
        Accessible.description: item.row.mayDecrement ? "" : Words.travellersLimit
        tint: item.row.mayDecrement ? Theme.secondaryColor : Theme.formBorderColor
        onClicked: {
            item.isChanged = true
            item.row.decrement()
        }
    }
    PlainText {
        id: number
        objectName: "number"
        anchors { right: plus.left; verticalCenter: parent.verticalCenter }
        width: 28 * Theme.textScale
        horizontalAlignment: Text.AlignHCenter
        text: item.row.number
        Accessible.name: item.count
        font.pixelSize: Theme.sectionSize
        font.weight: Font.Medium
    }
    IconButton {
        id: plus
        objectName: "increment"
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        iconName: "incrementIcon"
        label: Words.fill(Words.travellersOneMore, {kind: item.row.category})
        Accessible.description: item.row.mayIncrement ? "" : Words.travellersLimit
        tint: item.row.mayIncrement ? Theme.secondaryColor : Theme.formBorderColor
        onClicked: {
            item.isChanged = true
            item.row.increment()
        }
    }
}
