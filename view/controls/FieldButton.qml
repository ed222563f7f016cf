import QtQuick
import Ombrivane

// A field of a form that opens something: its placeholder rises to a label once it has a value.
Pressable {
    id: field

    required property string iconName
    required property string placeholder
    property string value: ""
    property alias mark: fieldMark.mark
    readonly property alias missing: fieldMark.missing
    readonly property alias inOrder: fieldMark.inOrder
    property bool framed: true
    property real leastHeight: Theme.fieldHeight

    implicitHeight: Math.max(leastHeight, texts.implicitHeight + 12)
    Accessible.name: missing ? Words.fill(Words.fieldIsMissing, {field: placeholder})
                             : value !== "" ? Words.fill(Words.fieldWithValue, {field: placeholder, value: value}) : placeholder

    background: Rectangle {
        radius: Theme.fieldRadius
        color: field.down ? Theme.segmentColor : (field.framed ? Theme.formBackgroundColor : "transparent")
        border.width: field.missing ? 2 : (field.framed ? 1 : 0)
        border.color: field.missing ? Theme.primaryColor
                    : field.inOrder ? Theme.secondaryColor : Theme.formBorderColor
    }
    contentItem: Item {
        Icon {
            id: icon
            anchors { left: parent.left; leftMargin: 14 }
            visible: field.width >= 180 * Theme.textScale
            width: visible ? 22 : 0
            height: 22
            anchors.verticalCenter: parent.verticalCenter
            name: field.iconName
            color: Theme.placeHolderColor
        }
        Column {
            id: texts
            anchors {
                left: icon.right
                leftMargin: icon.visible ? 12 : 0
                right: parent.right
                rightMargin: field.missing || field.inOrder ? 44 : 12
                verticalCenter: parent.verticalCenter
            }
            PlainText {
                visible: field.value !== ""
                width: parent.width
                text: field.placeholder
                color: Theme.placeHolderColor
                font.pixelSize: Theme.smallSize
                spread: 1.1
                Accessible.ignored: true
            }
            PlainText {
                width: parent.width
                text: field.value !== "" ? field.value : field.placeholder
                color: field.value !== "" ? Theme.blackColor : Theme.placeHolderColor
                spread: 1.2
                Accessible.ignored: true
            }
        }
    }
    FieldMark { id: fieldMark }
}
