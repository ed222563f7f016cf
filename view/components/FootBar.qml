import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// The bar at the foot of a page: what was chosen so far, and the action that goes on with it.
Rectangle {
    id: bar

    property string iconName: ""
    property string label: ""
    property string value: ""
    property bool emphasised: false
    // What the value is the sum of.
    property string firstPart: ""
    property string secondPart: ""
    required property string action
    property string actionIcon: ""
    // Without its label, where there is little height.
    property bool terse: false
    // A place ahead of the value for controls of `leadingWidth`.
    readonly property alias leading: controls
    property real leadingWidth: 0
    readonly property bool narrow: width < 340 * Theme.textScale
    signal clicked

    implicitHeight: grid.implicitHeight + 2 * Theme.gap
    color: Theme.whiteColor

    Rectangle {
        x: -Theme.safeLeft
        width: parent.width + Theme.safeLeft + Theme.safeRight
        height: parent.height + Theme.safeBottom
        color: Theme.whiteColor
        Rectangle { width: parent.width; height: 1; color: Theme.hairlineColor }
    }
    Blocker { anchors.fill: parent }
    GridLayout {
        id: grid
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, Theme.contentWidth)
        columns: bar.narrow ? 1 : 2
        columnSpacing: Theme.gap
        rowSpacing: 8
        RowLayout {
            Layout.fillWidth: true
            spacing: 10
            Item {
                id: controls
                visible: bar.leadingWidth > 0
                implicitWidth: bar.leadingWidth
                implicitHeight: Theme.target
            }
            Icon {
                visible: bar.iconName !== ""
                implicitWidth: 24
                implicitHeight: 24
                name: bar.iconName
                color: Theme.secondaryColor
            }
            Column {
                Layout.fillWidth: true
                PlainText {
                    width: parent.width
                    visible: bar.label !== "" && !(bar.terse && bar.narrow)
                    text: bar.label
                    color: Theme.placeHolderColor
                    font.pixelSize: Theme.captionSize
                }
                PlainText {
                    objectName: "chosen"
                    width: parent.width
                    text: bar.value
                    Accessible.name: bar.label !== "" && bar.terse ? bar.label + " " + text : text
                    spread: 1.2
                    color: Theme.blackColor
                    font.pixelSize: bar.emphasised ? Theme.priceSize : Theme.bodySize
                    font.weight: bar.emphasised ? Font.DemiBold : Font.Medium
                }
                Flow {
                    width: parent.width
                    visible: bar.firstPart !== "" && !(bar.terse && bar.narrow)
                    spacing: 4
                    PlainText {
                        objectName: "firstPart"
                        width: Math.min(Math.ceil(implicitWidth), parent.width)
                        text: bar.firstPart
                        spread: 1.2
                        color: Theme.placeHolderColor
                        font.pixelSize: Theme.smallSize
                    }
                    PlainText {
                        objectName: "secondPart"
                        width: Math.min(Math.ceil(implicitWidth), parent.width)
                        text: bar.secondPart
                        spread: 1.2
                        color: Theme.placeHolderColor
                        font.pixelSize: Theme.smallSize
                    }
                }
            }
        }
        MainButton {
            objectName: "go"
            Layout.fillWidth: bar.narrow
            Layout.minimumWidth: 120
            text: bar.action
            iconName: bar.actionIcon
            onClicked: bar.clicked()
        }
    }
}
