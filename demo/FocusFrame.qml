import QtQuick
import OmbrivaneDemo

// What has the focus, once keys are used: a ring outside of its parent.
Rectangle {
    required property WalletLook look
    required property bool shown

    visible: shown
    anchors { fill: parent; margins: -3 }
    color: "transparent"
    border { width: 2; color: look.ink }
}
