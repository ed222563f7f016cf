import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// Travellers and cabin class.
Sheet {
    id: page

    required property TravellerSheetAdapter screen
    signal back

    name: page.screen.heading
    wantedHeight: column.implicitHeight + done.implicitHeight + 2 * Theme.margin
    onDismissed: back()

    Flickable {
        anchors { top: parent.top; bottom: done.top; bottomMargin: 8; left: parent.left; right: parent.right; margins: Theme.margin; topMargin: 0 }
        contentHeight: column.implicitHeight
        clip: true
        ColumnLayout {
            id: column
            width: parent.width
            spacing: 4
            PlainText { Layout.fillWidth: true; text: page.screen.heading; font.pixelSize: Theme.sectionSize; font.weight: Font.Medium; Accessible.role: Accessible.Heading }
            PlainText { Layout.fillWidth: true; text: page.screen.subHeading; color: Theme.placeHolderColor }
            Repeater {
                model: page.screen.steppers
                StepperRow { Layout.fillWidth: true }
            }
            PlainText { Layout.fillWidth: true; Layout.topMargin: 8; text: page.screen.cabinHeading; font.pixelSize: Theme.sectionSize; font.weight: Font.Medium; Accessible.role: Accessible.Heading }
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 4
                Accessible.role: Accessible.Grouping
                Accessible.name: page.screen.cabinHeading
                Repeater {
                    model: page.screen.cabins
                    RadioRow { Layout.fillWidth: true }
                }
            }
        }
    }
    MainButton {
        id: done
        objectName: "done"
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Theme.margin }
        text: page.screen.doneText
        onClicked: page.screen.done()
    }
}
