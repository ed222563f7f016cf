import QtQuick
import QtQuick.Templates as T
import Ombrivane.Private

// A field that the customer types into: its placeholder rises to a label once it has a value, and a marked one also
// shows an icon and says that it is missing.
T.TextField {
    id: field

    required property string iconName
    required property string placeholder
    required property string value
    // What is wrong with what stands in it; a refused value is no missing one.
    property string problem: ""
    property string mark: "formBorderColor"
    readonly property bool missing: fieldMark.missing && problem === ""
    readonly property alias inOrder: fieldMark.inOrder
    readonly property bool raised: length > 0 || preeditText !== ""

    // Return goes to the next field, and after the last one to the button.
    function goOn() {
        let next = field.nextItemInFocusChain()
        for (let i = 0; i < 20 && !takesOver(next); ++i) next = next.nextItemInFocusChain()
        next.forceActiveFocus(Qt.TabFocusReason)
    }
    function takesOver(item: Item): bool {
        return (item as CustomTextFieldView) !== null || (item as FieldButton) !== null || (item as DocumentTile) !== null || (item as MainButton) !== null
    }

    text: value
    implicitHeight: Math.max(Theme.fieldHeight, raised ? topPadding + contentHeight + 10 : label.implicitHeight + 16)
    leftPadding: Words.rightToLeft ? 44 : 48
    rightPadding: Words.rightToLeft ? 48 : 44
    topPadding: raised ? Math.max(18 * Theme.textScale, label.implicitHeight + 2) : 0
    horizontalAlignment: TextInput.AlignLeft
    verticalAlignment: TextInput.AlignVCenter
    color: Theme.blackColor
    selectionColor: Theme.secondaryColor
    selectedTextColor: Theme.secondaryTextColor
    font.family: Theme.fontFamily
    font.pixelSize: Theme.bodySize
    selectByMouse: true
    EnterKey.type: Qt.EnterKeyNext
    onAccepted: goOn()
    Accessible.role: Accessible.EditableText
    Accessible.name: problem !== "" ? Words.fill(Words.fieldWithValue, {field: placeholder, value: problem})
                   : missing ? Words.fill(Words.fieldIsMissing, {field: placeholder}) : placeholder

    background: Rectangle {
        radius: Theme.fieldRadius
        color: Theme.formBackgroundColor
        border.width: fieldMark.missing ? 2 : 1
        border.color: fieldMark.missing ? Theme.primaryColor
                    : field.inOrder ? Theme.secondaryColor : Theme.formBorderColor
        Icon {
            anchors { left: parent.left; leftMargin: 14 }
            width: 22
            height: 22
            anchors.verticalCenter: parent.verticalCenter
            name: field.iconName
            color: Theme.placeHolderColor
        }
        PlainText {
            id: label
            anchors { left: parent.left; leftMargin: 48 }
            y: field.raised ? 6 : (parent.height - height) / 2
            width: parent.width - 92
            text: field.placeholder
            color: Theme.placeHolderColor
            font.pixelSize: field.raised ? Theme.smallSize : Theme.bodySize
            spread: 1.1
            Accessible.ignored: true
        }
        FieldMark { id: fieldMark; mark: field.problem !== "" ? "primaryColor" : field.mark }
    }
}
