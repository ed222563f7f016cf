import QtQuick
import Ombrivane

// A wallet that speaks Nepali, in its own colours and with square corners.
Window {
    id: wallet
    visible: true; width: 390; height: 844
    OmbrivaneView {
        anchors.fill: parent
        clientId: "wallet"; clientSecret: "wallet-secret"; walletBalance: 250000
        language: "ne"; region: "NP"
        supportMobile: "+977 980 0000 123"; supportLandLine: ""
        appearance: Appearance {
            light { canvas: "#FBF5EC"; primary: "#9C1F4D"; secondary: "#1F4E8C"; range: "#E0EAF6"; segment: "#F6EEE2" }
            dark { canvas: "#14100C"; card: "#201A14"; primary: "#FF9BBF"; secondary: "#9CC4FF" }
            cornerRadius: 2
            poweredBy: ""
        }
        onClosed: wallet.close()
        Component.onCompleted: open()
    }
}
