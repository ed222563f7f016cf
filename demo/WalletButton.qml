import QtQuick
import OmbrivaneDemo
import QtQuick.Templates as T

// A button of the wallet; a quiet one is words alone.
T.Button {
    id: button

    required property WalletLook look
    property bool quiet: false

    implicitHeight: Math.max(48, label.implicitHeight + 16)
    implicitWidth: label.implicitWidth + leftPadding + rightPadding
    leftPadding: quiet ? 0 : 24
    rightPadding: leftPadding
    focusPolicy: Qt.StrongFocus
    Accessible.name: text
    Keys.onReturnPressed: button.clicked()
    Keys.onEnterPressed: button.clicked()
    background: Rectangle {
        id: ground
        radius: Math.min(height / 2, button.look.radius)
        color: button.quiet ? "transparent" : button.look.accent
        opacity: button.enabled ? (button.down ? 0.85 : 1) : 0.4
        FocusFrame { look: button.look; shown: button.visualFocus; radius: ground.radius }
    }
    contentItem: WalletText {
        id: label
        look: button.look
        text: button.text
        color: button.quiet ? look.accent : look.accentText
        font.weight: Font.Medium
        verticalAlignment: Text.AlignVCenter
        horizontalAlignment: button.quiet ? Text.AlignLeft : Text.AlignHCenter
        Accessible.ignored: true
    }
}
