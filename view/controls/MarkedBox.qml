import QtQuick
import QtQuick.Templates as T

// A box. What the page marks is marked: a tap tells the page, and changes nothing by itself.
T.CheckBox {
    id: control

    property bool marked: false

    checkState: marked ? Qt.Checked : Qt.Unchecked
    nextCheckState: () => control.marked ? Qt.Checked : Qt.Unchecked
    focusPolicy: Qt.StrongFocus
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()
}
