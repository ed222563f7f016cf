// A wallet of Qt Widgets: the component is a widget among others.
#include "Once.h"
#include "device/QtPlatform.h"
#include "services/ServiceHosts.h"
#include "session/Reservations.h"

#include <QApplication>
#include <QLabel>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWidget>
#include <QVBoxLayout>

int main(int count, char** values) {
    if (count < 3) return 2;
    const std::string service = values[1], certificates = values[2];
    const QApplication application(count, values);
    ombrivane::Platform::install(ombrivane::view::qtPlatform(certificates));
    ombrivane::ServiceHosts::use({.production = service, .test = service});

    auto& reservations = ombrivane::Reservations::shared();
    const auto receipts = reservations.observe([&reservations] {
        while (const auto reserved = reservations.take())
            qInfo("%s", reserved->at("bookingSummary").at("PNR").get<std::string>().c_str());
    });

    QWidget wallet;
    QVBoxLayout layout(&wallet);
    QLabel balance("Balance: NPR 250,000");
    QQuickWidget flights;
    flights.setResizeMode(QQuickWidget::SizeRootObjectToView);
    flights.setSource(QUrl("qrc:/qt-project.org/imports/Ombrivane/OmbrivaneView.qml"));
    layout.addWidget(&balance);
    layout.addWidget(&flights, 1);
    auto* session = flights.rootObject()->findChild<ombrivane::view::OmbrivaneSession*>();
    session->clientId = "wallet";
    session->clientSecret = "wallet-secret";
    session->setCallback([](auto, auto error) {
        if (error) qInfo("%s", error->localizedDescription.c_str());
    });
    QObject::connect(session, &ombrivane::view::OmbrivaneSession::closed, &flights, &QWidget::hide);
    wallet.resize(390, 900);
    wallet.show();
    session->open();

    if (count > 3) endOnce(session);
    const int result = QApplication::exec();
    ombrivane::Platform::endNetwork();
    return result;
}
