import QtQuick
import QtQuick.Templates as T

// One of several choices. What the page marks is marked: a tap tells the page, and changes nothing by itself.
// Of which template of the toolkit a control is made decides what assistive technology calls it.
T.RadioButton {
    id: control

    property bool marked: false

    autoExclusive: false
    focusPolicy: Qt.StrongFocus
    onToggled: checked = marked
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()

    Binding { target: control; property: "checked"; value: control.marked }
}
