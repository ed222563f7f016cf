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

    // What the Tab key leads to comes into view, and a card that is new.
    function reveal(item: Item): void {
        if (item === null || !visible) return
        const place = item.mapToItem(page, 0, 0)
        if (place.y < 0 || place.y > page.height) return
        const least = place.y + item.height + 48 - scroll.height
        const most = Math.max(0, place.y - 16)
        scroll.contentY = Math.max(0, Math.min(Math.max(scroll.contentY, least), most))
    }

    // A card comes while the component still lies over the page.
    property Item fresh: null
    onVisibleChanged: awaitsFrame = true

    function revealFresh(): void {
        if (!visible) return
        reveal(fresh)
        fresh = null
    }

    // Once it is laid out.
    property bool awaitsFrame: false
    Connections {
        target: home.Window.window
        enabled: home.awaitsFrame
        function onFrameSwapped(): void {
            home.awaitsFrame = false
            home.revealFresh()
        }
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
                onItemAdded: (index, item) => { home.fresh = item; home.awaitsFrame = true }
                ReceiptCard {
                    look: home.look
                    account: home.account
                    Layout.fillWidth: true
                }
            }
        }
    }
}
