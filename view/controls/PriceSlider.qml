import QtQuick
import QtQuick.Templates as T
import Ombrivane.Private

// A ceiling between two bounds.
T.Slider {
    id: slider

    required property string label
    required property string valueText

    implicitHeight: Theme.target
    leftPadding: 0
    rightPadding: 0
    stepSize: Math.max(1, (to - from) / 100)
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Slider
    Accessible.name: label
    Accessible.description: valueText
    Accessible.onIncreaseAction: { increase(); moved() }
    Accessible.onDecreaseAction: { decrease(); moved() }

    background: Rectangle {
        y: (slider.height - height) / 2
        width: slider.width
        height: 6
        radius: 3
        color: Theme.hairlineColor
        Rectangle {
            anchors.left: parent.left
            width: slider.position * (parent.width - 28) + 14
            height: parent.height
            radius: 3
            color: Theme.secondaryColor
        }
    }
    handle: Rectangle {
        x: slider.visualPosition * (slider.width - width)
        y: (slider.height - height) / 2
        width: 28
        height: 28
        radius: 14
        color: Theme.whiteColor
        border.width: 2
        border.color: Theme.secondaryColor
    }
}
