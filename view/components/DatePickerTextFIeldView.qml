import QtQuick
import Ombrivane.Private

// A field for a date within limits, which are told as "yyyy-MM-dd"; it shows the date as `value`.
FieldButton {
    required property string earliest
    property string latest: ""
    property string day: ""
    signal picked(day: string)

    iconName: "calendarIcon"
}
