// A wallet in QML: one import, the item, and the receipts, which outlive it.
#include "Once.h"
#include "device/QtPlatform.h"
#include "services/ServiceHosts.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>

constexpr const char* wallet = R"(
import QtQuick
import Ombrivane
Window {
    id: wallet
    visible: true; width: 390; height: 844
    Reservations { onArrived: console.info(JSON.parse(take()).bookingSummary.PNR) }
    OmbrivaneView {
        anchors.fill: parent
        clientId: "wallet"; clientSecret: "wallet-secret"; walletBalance: 250000
        onFailed: message => console.info(message)
        onClosed: wallet.close()
        Component.onCompleted: open()
    }
})";

int main(int count, char** values) {
    if (count < 3) return 2;
    const std::string service = values[1], certificates = values[2];
    const QGuiApplication application(count, values);
    ombrivane::Platform::install(ombrivane::view::qtPlatform(certificates));
    ombrivane::ServiceHosts::use({.production = service, .test = service});

    int result = 1;
    {
        QQmlApplicationEngine engine;
        engine.loadData(wallet);
        if (engine.rootObjects().isEmpty()) return 1;
        if (count > 3)
            endOnce(engine.rootObjects().constFirst()->findChild<ombrivane::view::OmbrivaneSession*>());
        result = QGuiApplication::exec();
    }
    ombrivane::Platform::endNetwork();
    return result;
}
