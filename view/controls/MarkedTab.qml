import QtQuick
import QtQuick.Templates as T

// A tab, which the page marks where it is the chosen one.
T.TabButton {
    id: control

    property bool marked: false

    checkable: false
    focusPolicy: Qt.StrongFocus
    Accessible.name: text
    Accessible.selectable: true
    Accessible.selected: marked
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()
}
