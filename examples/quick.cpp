// A wallet in C++ with Qt Quick: it makes the view item, and keeps its receipts outside of it.
#include "Once.h"
#include "device/QtPlatform.h"
#include "services/ServiceHosts.h"
#include "session/Reservations.h"

#include <QGuiApplication>
#include <QQuickView>

#include <iostream>

int main(int count, char** values) {
    if (count < 3) return 2;
    const std::string service = values[1], certificates = values[2];
    const QGuiApplication application(count, values);
    ombrivane::Platform::install(ombrivane::view::qtPlatform(certificates));
    ombrivane::ServiceHosts::use({.production = service, .test = service});

    auto& reservations = ombrivane::Reservations::shared();
    const auto receipts = reservations.observe([&reservations] {
        while (const auto reserved = reservations.take())
            std::cout << reserved->at("bookingSummary").at("PNR") << "\n";
    });

    QQuickView window;
    window.setResizeMode(QQuickView::SizeRootObjectToView);
    window.setSource(QUrl("qrc:/qt-project.org/imports/Ombrivane/OmbrivaneView.qml"));
    auto* session = window.findChild<ombrivane::view::OmbrivaneSession*>();
    session->clientId = "wallet";
    session->clientSecret = "wallet-secret";
    session->walletBalance = 250000;
    session->setCallback([](auto, auto error) {
        if (error) std::cout << error->localizedDescription << "\n";
    });
    QObject::connect(session, &ombrivane::view::OmbrivaneSession::closed, &window, &QWindow::close);
    window.resize(390, 844);
    window.show();
    session->open();

    if (count > 3) endOnce(session);
    const int result = QGuiApplication::exec();
    ombrivane::Platform::endNetwork();
    return result;
}
