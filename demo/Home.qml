import QtQuick
import OmbrivaneDemo
import QtQuick.Layouts

// The wallet's own page: what the customer has, what the wallet does, and the receipts.
Rectangle {
    id: home

    required property WalletLook look
    required property WalletAccount account
    signal flightsChosen

    color: look.canvas
    LayoutMirroring.enabled: account.rightToLeft
    LayoutMirroring.childrenInherit: true

    // What the Tab key leads to comes into view.
    function reveal(item: Item): void {
        if (item === null || !visible || !page.contains(item.mapToItem(page, 0, 0))) return
        const top = item.mapToItem(page, 0, 0).y
        scroll.contentY = Math.max(Math.min(scroll.contentY, top), top + item.height + 48 - scroll.height)
    }

    Window.onActiveFocusItemChanged: reveal(Window.activeFocusItem)

    Flickable {
        id: scroll
        anchors.fill: parent
        contentHeight: page.height + 48
        boundsBehavior: Flickable.StopAtBounds

        ColumnLayout {
            id: page
            width: Math.min(parent.width - 32, 560)
            anchors { top: parent.top; topMargin: 24; horizontalCenter: parent.horizontalCenter }
            spacing: 16
            RowLayout {
                spacing: 12
                Rectangle {
                    implicitWidth: 40; implicitHeight: 40
                    radius: Math.min(20, home.look.radius)
                    color: home.look.accent
                    WalletText {
                        look: home.look
                        anchors.centerIn: parent
                        text: home.look.name.charAt(0)
                        color: look.accentText
                        font { pixelSize: 22; weight: Font.DemiBold }
                        Accessible.ignored: true
                    }
                }
                WalletText {
                    look: home.look
                    Layout.fillWidth: true
                    text: home.look.name
                    size: 22
                    font.weight: Font.DemiBold
                }
            }
            BalanceCard {
                look: home.look
                Layout.fillWidth: true
                balance: home.account.balanceText
            }
            Tiles {
                look: home.look
                Layout.fillWidth: true
                onFlightsChosen: home.flightsChosen()
            }
            WalletText {
                look: home.look
                Layout.fillWidth: true
                Layout.topMargin: 8
                text: home.look.words.receipts
                size: 18
                font.weight: Font.DemiBold
            }
            WalletText {
                look: home.look
                visible: cards.count === 0
                Layout.fillWidth: true
                text: home.look.words.none
                color: look.quiet
            }
            Repeater {
                id: cards
                model: home.account.receipts
                ReceiptCard {
                    look: home.look
                    account: home.account
                    Layout.fillWidth: true
                }
            }
        }
    }
}
