import QtQuick
import OmbrivaneDemo
import QtQuick.Templates as T

// One of several: a name, and what there is to choose from.
Column {
    id: row

    required property WalletLook look
    required property string name
    required property var labels
    required property list<string> values
    required property string value
    signal chosen(value: string)

    spacing: 4
    WalletText { look: row.look; text: row.name; size: 13; color: look.quiet }
    Flow {
        width: parent.width
        spacing: 4
        Repeater {
            model: row.labels
            T.RadioButton {
                id: choice
                required property int index
                required property string modelData
                readonly property bool marked: row.values[index] === row.value
                objectName: row.name + " " + modelData
                autoExclusive: false
                onToggled: checked = marked
                focusPolicy: Qt.StrongFocus
                implicitWidth: label.implicitWidth + 24
                implicitHeight: 40
                text: modelData
                Accessible.name: row.name + ": " + modelData
                Keys.onReturnPressed: choice.clicked()
                Keys.onEnterPressed: choice.clicked()
                onClicked: row.chosen(row.values[index])
                Binding { target: choice; property: "checked"; value: choice.marked }
                background: Rectangle {
                    radius: 8
                    color: choice.marked ? row.look.accent : row.look.card
                    border { width: 1; color: choice.marked ? row.look.accent : row.look.hairline }
                    FocusFrame { look: row.look; shown: choice.visualFocus; radius: 10 }
                }
                contentItem: WalletText {
                    id: label
                    look: row.look
                    text: choice.text
                    size: 14
                    font.family: look.familyOf(text)
                    color: choice.marked ? look.accentText : look.ink
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    Accessible.ignored: true
                }
            }
        }
    }
}
