import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// Where a page has come to an end: one picture, a title, one sentence and one action. It is said aloud.
Flickable {
    id: state

    required property string imageName
    required property string title
    required property string text
    property string action: ""
    property string actionName: "action"
    signal acted

    contentHeight: Math.max(height, column.implicitHeight + 2 * Theme.sectionGap)
    clip: true

    Aloud { text: state.text !== "" ? state.title + " " + state.text : "" }
    ColumnLayout {
        id: column
        anchors.centerIn: parent
        width: Math.min(parent.width - 4 * Theme.margin, 400)
        spacing: Theme.gap
        Icon {
            Layout.alignment: Qt.AlignHCenter
            // Smaller where the words and the control need the room.
            readonly property real room: state.height - title.implicitHeight - words.implicitHeight - go.implicitHeight - 2 * Theme.sectionGap - 4 * Theme.gap
            implicitWidth: Math.max(80, Math.min(160, room))
            implicitHeight: implicitWidth
            name: state.imageName
            dark: Theme.dark
        }
        PlainText {
            id: title
            Layout.fillWidth: true
            text: state.title
            font.pixelSize: Theme.titleSize
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.Heading
        }
        PlainText {
            id: words
            objectName: "endText"
            Layout.fillWidth: true
            text: state.text
            color: Theme.placeHolderColor
            horizontalAlignment: Text.AlignHCenter
        }
        MainButton {
            id: go
            objectName: state.actionName
            visible: state.action !== ""
            Layout.fillWidth: true
            Layout.topMargin: Theme.gap
            text: state.action
            onClicked: state.acted()
        }
    }
}
