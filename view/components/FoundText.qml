import QtQuick
import Ombrivane.Private

// A text of a row in which what was looked for is underlined. The row reads it out as a whole.
PlainText {
    id: found

    property string sought: ""
    readonly property int at: sought.trim() !== "" ? text.toLowerCase().indexOf(sought.trim().toLowerCase()) : -1

    Accessible.ignored: true

    Loader {
        anchors.fill: parent
        active: found.at >= 0
        sourceComponent: Underlines {
            stretches: [found.at, found.sought.trim().length]
            text: found.text
            font: found.font
            color: Theme.secondaryColor
            alignment: found.effectiveHorizontalAlignment
            origin: Qt.point(found.leftPadding, found.topPadding)
            lineHeight: found.lineHeight
            strength: 2
        }
    }
}
