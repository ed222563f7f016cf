import QtQuick
import Ombrivane.Private

// A field for one end of a journey: the city large with the code of its airport, whose name stands beneath.
FieldFrame {
    id: place

    required property string city
    required property string code
    required property string airport

    framed: false
    // As high empty as filled.
    implicitHeight: Math.max(76, texts.implicitHeight + 16)
    contentItem: Item {
        Icon {
            id: icon
            anchors { left: parent.left; leftMargin: 14; verticalCenter: parent.verticalCenter }
            visible: !place.tight
            width: visible ? 22 : 0
            height: 22
            name: place.iconName
            color: Theme.placeHolderColor
        }
        Column {
            id: texts
            anchors {
                left: icon.right
                leftMargin: icon.visible ? 12 : 0
                right: parent.right
                rightMargin: place.aside + (place.missing ? 36 : 4)
                verticalCenter: parent.verticalCenter
            }
            spacing: 1
            PlainText {
                width: parent.width
                text: place.placeholder
                color: Theme.placeHolderColor
                font.pixelSize: place.city !== "" ? Theme.smallSize : Theme.bodySize
                spread: 1.1
                Accessible.ignored: true
            }
            Flow {
                visible: place.city !== ""
                width: parent.width
                spacing: 8
                PlainText {
                    id: cityText
                    objectName: "city"
                    width: Math.min(Math.ceil(implicitWidth), parent.width)
                    text: place.city
                    font.pixelSize: place.tight ? Theme.sectionSize : Theme.titleSize
                    font.weight: Font.DemiBold
                    spread: 1.1
                    Accessible.ignored: true
                }
                Item {
                    visible: place.code !== ""
                    width: chip.width
                    height: Math.max(chip.height, cityText.lineCount === 1 ? cityText.height : 0)
                    Rectangle {
                        id: chip
                        objectName: "code"
                        anchors.verticalCenter: parent.verticalCenter
                        width: codeText.width + 14
                        height: codeText.height + 4
                        radius: height / 2
                        color: Theme.segmentColor
                        PlainText {
                            id: codeText
                            anchors.centerIn: parent
                            width: Math.ceil(implicitWidth)
                            wrapMode: Text.NoWrap
                            text: place.code
                            font.pixelSize: Theme.captionSize
                            font.weight: Font.DemiBold
                            spread: 1.1
                            Accessible.ignored: true
                        }
                    }
                }
            }
            PlainText {
                objectName: "airport"
                visible: text !== ""
                width: parent.width
                text: place.airport
                color: Theme.placeHolderColor
                font.pixelSize: Theme.captionSize
                spread: 1.1
                Accessible.ignored: true
            }
        }
    }
}
