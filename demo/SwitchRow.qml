import QtQuick
import OmbrivaneDemo
import QtQuick.Templates as T

// On or off. What the strip says is shown: a tap tells the strip.
T.CheckBox {
    id: row

    required property WalletLook look
    required property bool on
    property string reason: ""

    checkState: on ? Qt.Checked : Qt.Unchecked
    nextCheckState: () => row.on ? Qt.Checked : Qt.Unchecked
    implicitHeight: 40
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : 0.5
    Accessible.name: text
    Accessible.description: reason
    Keys.onReturnPressed: row.clicked()
    Keys.onEnterPressed: row.clicked()
    background: Item { FocusFrame { look: row.look; shown: row.visualFocus; radius: 8 } }
    indicator: Rectangle {
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        width: 44; height: 24
        radius: 12
        color: row.on ? row.look.accent : row.look.canvas
        border { width: 1; color: row.on ? row.look.accent : row.look.quiet }
        Rectangle {
            x: row.on ? 22 : 2
            y: 2
            width: 20; height: 20
            radius: 10
            color: row.on ? row.look.accentText : row.look.quiet
        }
    }
    contentItem: WalletText {
        look: row.look
        rightPadding: 56
        text: row.text
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
