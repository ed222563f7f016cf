import QtQuick
import QtQuick.Templates as T

// An entry of a list that is one stop of the Tab key: its list says which entry the focus may go to.
T.ItemDelegate {
    id: control

    // Whether the keys stand on it.
    property bool atKeys: ListView.isCurrentItem
    // Of a list from which one is chosen, and whether it is this one.
    property bool isChoice: false
    property bool marked: false

    // What has the focus loses it before it gives its place up.
    focusPolicy: atKeys || activeFocus ? Qt.StrongFocus : Qt.NoFocus
    Accessible.selectable: isChoice
    Accessible.selected: isChoice && marked
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()
}
