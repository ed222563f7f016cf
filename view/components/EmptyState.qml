import QtQuick
import QtQuick.Layouts
import Ombrivane

// One picture, a title, one sentence and one action.
ResultsContent {
    id: state

    required property string imageName
    required property string title
    required property string text
    property string action: ""
    signal acted

    Aloud { text: state.title + " " + state.text }
    Flickable {
        anchors { fill: parent; topMargin: state.topInset; bottomMargin: state.bottomInset }
        contentHeight: Math.max(height, column.implicitHeight + 2 * Theme.sectionGap)
        clip: true
        ColumnLayout {
            id: column
            anchors.centerIn: parent
            width: Math.min(parent.width - 4 * Theme.margin, 400)
            spacing: Theme.gap
            Icon {
                Layout.alignment: Qt.AlignHCenter
                implicitWidth: 160
                implicitHeight: 160
                name: state.imageName
                dark: Theme.dark
            }
            PlainText {
                Layout.fillWidth: true
                text: state.title
                font.pixelSize: Theme.titleSize
                font.weight: Font.DemiBold
                horizontalAlignment: Text.AlignHCenter
                Accessible.role: Accessible.Heading
            }
            PlainText {
                Layout.fillWidth: true
                text: state.text
                color: Theme.placeHolderColor
                horizontalAlignment: Text.AlignHCenter
            }
            MainButton {
                objectName: "action"
                visible: state.action !== ""
                Layout.fillWidth: true
                Layout.topMargin: Theme.gap
                text: state.action
                onClicked: state.acted()
            }
        }
    }
}
