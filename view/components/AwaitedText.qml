import QtQuick
import Ombrivane.Private

// Shapes of a text that is not there yet, under the shimmer; `lines` are the lengths of its lines in parts of the width.
Shimmer {
    id: shapes

    property list<real> lines: [0.5, 1, 0.94, 0.98, 0.6, 0.4, 0.97, 0.9, 1, 0.35]

    implicitHeight: column.implicitHeight
    Column {
        id: column
        width: shapes.width
        spacing: 8
        Repeater {
            model: shapes.lines
            PlainText {
                id: line
                required property real modelData
                readonly property real dash: Math.max(1, one.advanceWidth)
                awaited: true
                text: "–".repeat(Math.max(1, Math.floor(modelData * shapes.width / dash)))
                wrapMode: Text.NoWrap
                TextMetrics { id: one; font: line.font; text: "–" }
            }
        }
    }
}
