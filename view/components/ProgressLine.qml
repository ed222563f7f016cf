import QtQuick
import Ombrivane.Private

// Something is under way; told to assistive technology as well.
Item {
    id: line

    required property string label

    implicitHeight: 4
    Accessible.role: Accessible.ProgressBar
    Accessible.name: label

    Aloud { text: line.visible ? line.label : "" }
    Rectangle {
        anchors.fill: parent
        radius: 2
        color: Theme.hairlineColor
        clip: true
        Rectangle {
            x: Words.rightToLeft ? parent.width - width : 0
            width: parent.width / 3
            height: parent.height
            radius: 2
            color: Theme.secondaryColor
            NumberAnimation on x {
                running: line.visible && !Theme.reducedMotion
                from: Words.rightToLeft ? line.width : -line.width / 3
                to: Words.rightToLeft ? -line.width / 3 : line.width
                duration: 1200
                loops: Animation.Infinite
            }
        }
    }
}
