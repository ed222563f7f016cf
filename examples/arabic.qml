import QtQuick
import Ombrivane

// A wallet that speaks Arabic, from the right to the left, in green and with round corners.
Window {
    id: wallet
    visible: true; width: 390; height: 844
    OmbrivaneView {
        anchors.fill: parent
        clientId: "wallet"; clientSecret: "wallet-secret"; walletBalance: 250000
        language: "ar"; region: "QA"
        supportMobile: "+974 5550 0123"; supportLandLine: "+974 4450 0123"
        appearance: Appearance {
            light { canvas: "#F1F6F0"; primary: "#A63A00"; secondary: "#1B6B3A"; range: "#DCEEE0"; segment: "#EAF2E8" }
            dark { canvas: "#0B120D"; card: "#141D16"; primary: "#FFB38A"; secondary: "#7FD99B"; range: "#12351F" }
            cornerRadius: 22
        }
        onClosed: wallet.close()
        Component.onCompleted: open()
    }
}
