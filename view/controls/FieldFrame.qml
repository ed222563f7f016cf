import QtQuick
import Ombrivane.Private

// What fields share that open something: frame, mark and name; whoever extends it gives it its content.
Pressable {
    id: field

    required property string iconName
    required property string placeholder
    property string value: ""
    property alias mark: fieldMark.mark
    readonly property alias missing: fieldMark.missing
    readonly property alias inOrder: fieldMark.inOrder
    property bool framed: true
    // What its right end leaves to something else, in points.
    property real aside: 0
    readonly property bool tight: width < 180 * Theme.textScale

    Accessible.name: missing ? Words.fill(Words.fieldIsMissing, {field: placeholder})
                             : value !== "" ? Words.fill(Words.fieldWithValue, {field: placeholder, value: value}) : placeholder

    background: Rectangle {
        radius: Theme.fieldRadius
        color: field.down ? Theme.segmentColor : (field.framed ? Theme.formBackgroundColor : "transparent")
        border.width: field.missing ? 2 : (field.framed ? 1 : 0)
        border.color: field.missing ? Theme.primaryColor
                    : field.inOrder ? Theme.secondaryColor : Theme.formBorderColor
    }
    FieldMark { id: fieldMark; anchors.rightMargin: field.aside > 0 ? field.aside + 4 : 14 }
}
