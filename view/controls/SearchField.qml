import QtQuick
import QtQuick.Templates as T
import Ombrivane.Private

// A line in which the customer types what to look for.
T.TextField {
    id: field

    required property string placeholder

    implicitHeight: Math.max(Theme.fieldHeight, contentHeight + 20, hint.visible ? hint.implicitHeight + 16 : 0)
    leftPadding: 48
    rightPadding: 48
    horizontalAlignment: TextInput.AlignLeft
    verticalAlignment: TextInput.AlignVCenter
    color: Theme.blackColor
    selectionColor: Theme.secondaryColor
    selectedTextColor: Theme.secondaryTextColor
    font.family: Theme.fontFamily
    font.pixelSize: Theme.bodySize
    selectByMouse: true
    inputMethodHints: Qt.ImhNoPredictiveText
    EnterKey.type: Qt.EnterKeySearch
    Accessible.searchEdit: true
    Accessible.name: placeholder

    background: Rectangle {
        radius: Theme.fieldRadius
        color: Theme.formBackgroundColor
        border.width: 1
        border.color: Theme.formBorderColor
        Icon {
            anchors { left: parent.left; leftMargin: 14 }
            width: 22
            height: 22
            anchors.verticalCenter: parent.verticalCenter
            name: "searchIcon"
            color: Theme.placeHolderColor
        }
        PlainText {
            id: hint
            anchors { left: parent.left; leftMargin: 48 }
            width: parent.width - 62
            anchors.verticalCenter: parent.verticalCenter
            visible: field.length === 0 && field.preeditText === ""
            text: field.placeholder
            color: Theme.placeHolderColor
            Accessible.ignored: true
        }
    }
    IconButton {
        objectName: "clear"
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        visible: field.length > 0
        iconName: "xmark.circle"
        label: Words.searchClear
        tint: Theme.placeHolderColor
        onClicked: {
            field.clear()
            field.textEdited()
            field.forceActiveFocus(Qt.OtherFocusReason)
        }
    }
}
