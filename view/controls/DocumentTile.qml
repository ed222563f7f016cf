import QtQuick
import QtQuick.Shapes
import Ombrivane.Private

// The picture of a document as a field: the outline of a page while there is none, then the picture itself. A tap picks
// one, or another.
Pressable {
    id: tile

    required property string placeholder
    property alias value: picture.value
    property alias mark: fieldMark.mark
    readonly property alias missing: fieldMark.missing
    readonly property alias inOrder: fieldMark.inOrder
    readonly property color tint: missing ? Theme.primaryColor : Theme.placeHolderColor

    implicitHeight: value.held ? Math.max(120, Math.min(width * value.ratio, 200)) : empty.implicitHeight + 32
    Accessible.name: missing ? Words.fill(Words.fieldIsMissing, {field: placeholder}) : placeholder
    Accessible.description: value.held ? Words.pictureChosen : ""

    background: Rectangle {
        radius: Theme.fieldRadius
        color: tile.down ? Theme.segmentColor : Theme.formBackgroundColor
        Document {
            id: picture
            objectName: "picture"
            anchors.fill: parent
            visible: value.held
            radius: Theme.fieldRadius
        }
        Rectangle {
            anchors.fill: parent
            radius: Theme.fieldRadius
            color: "transparent"
            border.width: tile.missing ? 2 : 1
            border.color: tile.missing ? Theme.primaryColor
                        : tile.inOrder ? Theme.secondaryColor : Theme.formBorderColor
        }
    }
    contentItem: Item {
        Column {
            id: empty
            anchors.centerIn: parent
            width: parent.width - 92
            visible: !tile.value.held
            spacing: 8
            Shape {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 40
                height: 52
                ShapePath {
                    strokeColor: tile.tint
                    strokeWidth: 2
                    strokeStyle: ShapePath.DashLine
                    dashPattern: [3, 2]
                    fillColor: "transparent"
                    startX: 1; startY: 1
                    PathLine { x: 27; y: 1 }
                    PathLine { x: 39; y: 13 }
                    PathLine { x: 39; y: 51 }
                    PathLine { x: 1; y: 51 }
                    PathLine { x: 1; y: 1 }
                }
                Icon {
                    anchors.centerIn: parent
                    width: 22
                    height: 22
                    name: "addIcon"
                    color: tile.tint
                }
            }
            PlainText {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: tile.placeholder
                color: Theme.placeHolderColor
                spread: 1.2
                Accessible.ignored: true
            }
        }
        Rectangle {
            visible: tile.value.held
            anchors { left: parent.left; bottom: parent.bottom; margins: 10 }
            width: label.width + 16
            height: label.height + 6
            radius: Math.min(height / 2, Theme.fieldRadius)
            color: Theme.whiteColor
            PlainText {
                id: label
                anchors.centerIn: parent
                width: Math.min(implicitWidth, tile.width - 36)
                text: tile.placeholder
                color: Theme.placeHolderColor
                font.pixelSize: Theme.smallSize
                spread: 1.1
                Accessible.ignored: true
            }
        }
        Rectangle {
            visible: tile.value.held
            anchors { right: parent.right; top: parent.top; margins: 10 }
            width: 28
            height: 28
            radius: 14
            color: Theme.secondaryColor
            border.width: 2
            border.color: Theme.whiteColor
            Icon { anchors.centerIn: parent; width: 18; height: 18; name: "checkIcon"; color: Theme.secondaryTextColor }
        }
    }
    FieldMark { id: fieldMark; opacity: tile.value.held ? 0 : 1 }
}
