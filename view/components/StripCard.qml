import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Ombrivane

// An airline with a price, which leads to its offer in the list below.
T.AbstractButton {
    id: card

    required property OfferCardAdapter row
    property bool awaited: false

    objectName: "stripCard"
    implicitWidth: line.implicitWidth + 24
    implicitHeight: Math.max(Theme.target, line.implicitHeight + 20)
    enabled: !awaited
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Button
    Accessible.name: row.carrierName + ", " + row.price
    onClicked: row.tap()
    Keys.onReturnPressed: card.clicked()
    Keys.onEnterPressed: card.clicked()

    background: Rectangle {
        radius: Theme.fieldRadius
        color: card.down ? Theme.segmentColor : Theme.whiteColor
        border.width: card.visualFocus ? 2 : 1
        border.color: card.visualFocus ? Theme.secondaryColor : Theme.hairlineColor
    }
    contentItem: Shimmer {
        running: card.awaited
        RowLayout {
            id: line
            x: 12
            height: parent.height
            spacing: 8
            Logo { url: card.row.carrierLogo }
            Column {
                CardText { text: card.row.carrierName; font.pixelSize: Theme.captionSize; wrapMode: Text.NoWrap }
                CardText {
                    text: card.row.price
                    color: Theme.blackColor
                    font.weight: Font.Medium
                    wrapMode: Text.NoWrap
                }
            }
        }
    }
}
