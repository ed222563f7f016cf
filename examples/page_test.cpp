// A test of a wallet's page: a script taps the component where the customer would, and the wallet's own
// callback is heard.
#include "device/QtPlatform.h"
#include "pages/PagePlayer.h"
#include "sandbox/Sandbox.h"
#include "services/ServiceHosts.h"

#include <QGuiApplication>
#include <QQuickView>

#include <sstream>

int main(int count, char** values) {
    const QGuiApplication application(count, values);
    ombrivane::sandbox::Sandbox service;
    service.start();
    ombrivane::kit::PagePlayer player(ombrivane::view::qtPlatform(service.caFile().string()));
    ombrivane::ServiceHosts::use({.production = service.address(), .test = service.address()});

    QQuickView window;
    window.setSource(QUrl("qrc:/qt-project.org/imports/Ombrivane/OmbrivaneView.qml"));
    auto* session = window.findChild<ombrivane::view::OmbrivaneSession*>();
    session->clientId = "wallet";
    session->clientSecret = "not the wallet's";
    int refusals = 0;
    session->setCallback(player.heardBy([&refusals](auto, auto error) { refusals += error ? 1 : 0; }));
    window.resize(390, 844);
    window.show();

    // What the wallet shows when its credentials were withdrawn, and once they are right again.
    std::istringstream withdrawn(
        "open\nwait-event callback {\"error\":{\"domain\":\"Ombrivane.Authentication\"}}\n"
        "wait-event closed\n");
    std::istringstream right("open\nwait-screen MainView\ntap MainView.form.tapOrigin\n"
                             "wait SelectOriginFlightView.rows 12\nno-event callback\ndestroy\n");
    const bool refused = player.play(withdrawn, *session) == ombrivane::journey::Ending::done;
    session->clientSecret = "wallet-secret";
    const bool served = player.play(right, *session) == ombrivane::journey::Ending::done;
    ombrivane::Platform::endNetwork();
    return refused && served && refusals == 1 ? 0 : 1;
}
