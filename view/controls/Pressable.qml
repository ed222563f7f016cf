import QtQuick
import QtQuick.Templates as T

// What all controls share that are pressed: Tab leads to them, and Return presses them as the space bar does.
T.AbstractButton {
    id: control

    focusPolicy: Qt.StrongFocus
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()
}
