import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// A message over everything with one button.
FocusScope {
    id: page

    required property AlertAdapter screen

    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: page.screen.title + " " + page.screen.message

    Dim {}
    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, 340)
        height: column.implicitHeight + 48
        radius: Theme.cardRadius
        color: Theme.whiteColor
        ColumnLayout {
            id: column
            anchors { left: parent.left; right: parent.right; margins: 24; verticalCenter: parent.verticalCenter }
            spacing: Theme.gap
            PlainText {
                objectName: "title"
                Layout.fillWidth: true
                text: page.screen.title
                Accessible.role: Accessible.Heading
                font.pixelSize: Theme.titleSize
                font.weight: Font.DemiBold
            }
            PlainText {
                objectName: "message"
                Layout.fillWidth: true
                text: page.screen.message
            }
            MainButton {
                objectName: "dismiss"
                Layout.fillWidth: true
                Layout.topMargin: 8
                text: page.screen.buttonText
                focus: true
                onClicked: page.screen.button()
            }
        }
    }
    Keys.onEscapePressed: page.screen.button()
}
