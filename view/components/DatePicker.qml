import QtQuick
import Ombrivane.Private

// The sheet of whichever date field was opened last. What lies below takes no input while it is `shown`.
FocusScope {
    id: picker

    property DatePickerTextFIeldView field: null
    readonly property bool shown: field !== null

    function open(opened: DatePickerTextFIeldView) {
        field = opened
        forceActiveFocus()
    }
    function close() {
        const former = field
        field = null
        former.forceActiveFocus(Qt.OtherFocusReason)
    }

    Loader {
        anchors.fill: parent
        focus: true
        active: picker.shown
        sourceComponent: DateSheet {
            focus: true
            title: picker.field.placeholder
            earliest: picker.field.earliest
            latest: picker.field.latest
            day: picker.field.day
            onPicked: day => {
                picker.field.picked(day)
                picker.close()
            }
            onDismissed: picker.close()
        }
    }
}
