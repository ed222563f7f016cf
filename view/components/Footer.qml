import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// The support strip under the search form.
ColumnLayout {
    id: footer

    required property FooterAdapter screen

    spacing: 4

    Item { Layout.fillWidth: true }

    RowLayout {
        Layout.alignment: Qt.AlignHCenter
        spacing: 8
        TapHandler { onTapped: footer.screen.tapMark() }
        PlainText {
            visible: !Theme.hidesPoweredBy
            text: Theme.poweredBy !== "" ? Theme.poweredBy : footer.screen.poweredBy
            color: Theme.placeHolderColor
            font.pixelSize: Theme.captionSize
        }
        Icon {
            visible: !mark.visible
            implicitWidth: 28
            implicitHeight: 28
            name: "logo"
            dark: Theme.dark
        }
        Image {
            id: mark
            visible: status === Image.Ready
            Layout.preferredHeight: 28
            Layout.preferredWidth: Math.min(112, Math.ceil(28 * implicitWidth / Math.max(1, implicitHeight)))
            source: Theme.logo
            fillMode: Image.PreserveAspectFit
            mipmap: true
        }
    }
    RowLayout {
        Layout.alignment: Qt.AlignHCenter
        spacing: 4
        IconLink {
            visible: footer.screen.callMobileEnabled
            iconName: "phoneIcon"
            label: footer.screen.mobile
            onClicked: footer.screen.callMobile()
        }
        IconLink {
            visible: footer.screen.openViberEnabled
            iconName: "viberIcon"
            label: Words.supportViber
            onClicked: footer.screen.openViber()
        }
        IconLink {
            visible: footer.screen.openWhatsappEnabled
            iconName: "whatsappIcon"
            label: Words.supportWhatsapp
            onClicked: footer.screen.openWhatsapp()
        }
        IconLink {
            visible: footer.screen.callLandLineEnabled
            iconName: "rotarPhoneIcon"
            label: footer.screen.landLine
            onClicked: footer.screen.callLandLine()
        }
    }
    PlainText {
        Layout.fillWidth: true
        horizontalAlignment: Text.AlignHCenter
        visible: text !== ""
        text: footer.screen.mobile + (footer.screen.callMobileEnabled && footer.screen.callLandLineEnabled ? "  ·  " : "") + footer.screen.landLine
        color: Theme.placeHolderColor
        font.pixelSize: Theme.smallSize
    }
}
