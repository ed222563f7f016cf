import QtQuick
import Ombrivane.Private

// The component as one item: give it its arguments, and `open` shows it.
ThemedScope {
    id: view

    property alias clientId: session.clientId
    property alias clientSecret: session.clientSecret
    property alias userType: session.userType
    property alias walletBalance: session.walletBalance
    property alias phone: session.phone
    property alias environment: session.environment
    property alias language: session.language
    property alias region: session.region
    property alias texts: session.texts
    property alias supportMobile: session.supportMobile
    property alias supportViber: session.supportViber
    property alias supportWhatsapp: session.supportWhatsapp
    property alias supportLandLine: session.supportLandLine
    property alias records: session.records
    property alias session: session
    signal finished(dictionary: string)
    signal failed(message: string, domain: string, code: int, kind: int)
    signal closed

    function open() { session.open() }
    function drop() { session.drop() }
    function saveState(): string { return session.saveState() }
    function restoreState(state: string): bool { return session.restoreState(state) }
    function recording(): string { return session.recording() }
    function forget() { session.forget() }

    OmbrivaneSession {
        id: session
        onFinished: dictionary => view.finished(dictionary)
        onFailed: (message, domain, code, kind) => view.failed(message, domain, code, kind)
        onClosed: view.closed()
    }
    Stage {
        anchors.fill: parent
        LayoutMirroring.enabled: Words.rightToLeft
        LayoutMirroring.childrenInherit: true
        focus: true
        model: session.stage
    }
}
