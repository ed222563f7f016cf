import QtQuick
import OmbrivaneDemo
import QtQuick.Layouts

// A reservation, what it costs and what was handed over with it; or what went wrong.
Rectangle {
    id: card

    required property WalletLook look
    required property WalletAccount account
    required property int index
    required property bool wentWrong
    required property string title
    required property string detail
    required property string route
    required property string dates
    required property string travellers
    required property string amount
    required property bool paid
    required property bool unfolded
    required property string handed
    property bool refused: false

    implicitHeight: lines.implicitHeight + 32
    radius: look.radius
    color: look.card
    border { width: 1; color: wentWrong ? look.alarm : look.hairline }

    component Line: Column {
        id: line
        required property string name
        required property string value
        visible: value !== ""
        Layout.fillWidth: true
        spacing: 0
        WalletText { look: card.look; width: parent.width; text: line.name; size: 12; color: look.quiet }
        WalletText { look: card.look; width: parent.width; text: line.value }
    }
    ColumnLayout {
        id: lines
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 16 }
        spacing: 8
        WalletText {
            look: card.look
            visible: card.wentWrong
            Layout.fillWidth: true
            text: card.title
            color: look.alarm
            font.weight: Font.DemiBold
        }
        WalletText { look: card.look; visible: card.wentWrong; Layout.fillWidth: true; text: card.detail }
        WalletText {
            objectName: "route"
            look: card.look
            visible: !card.wentWrong
            Layout.fillWidth: true
            text: card.route
            size: 18
            font.weight: Font.DemiBold
        }
        WalletText { look: card.look; visible: !card.wentWrong; Layout.fillWidth: true; text: card.dates; color: look.quiet; size: 14 }
        Line { name: card.look.words.travellers; value: card.travellers }
        Line { name: card.look.words.number; value: card.wentWrong ? "" : card.title }
        Line { name: card.look.words.amount; value: card.amount }
        WalletButton {
            objectName: "pay"
            look: card.look
            visible: card.amount !== "" && !card.paid
            Layout.fillWidth: true
            text: card.look.words.pay
            onClicked: card.refused = !card.account.pay(card.index)
        }
        WalletText {
            look: card.look
            visible: card.paid || card.refused
            Layout.fillWidth: true
            text: card.paid ? "✓ " + card.look.words.paid : card.look.words.tooLittle
            color: card.paid ? look.accent : look.alarm
            font.weight: Font.Medium
        }
        WalletButton {
            objectName: "fold"
            look: card.look
            visible: !card.wentWrong
            quiet: true
            Layout.fillWidth: true
            text: card.unfolded ? card.look.words.hide : card.look.words.show
            onClicked: card.account.fold(card.index)
        }
        WalletText {
            objectName: "handed"
            look: card.look
            visible: card.unfolded
            Layout.fillWidth: true
            text: card.handed
            size: 11
            font.family: "monospace"
            wrapMode: Text.WrapAnywhere
            // Keys and values are no words of any language.
            LayoutMirroring.enabled: false
        }
    }
}
