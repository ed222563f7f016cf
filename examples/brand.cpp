// A wallet in QML that looks like itself: its file is its language, its colours and its support.
#include "Once.h"
#include "device/QtPlatform.h"
#include "services/ServiceHosts.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int count, char** values) {
    if (count < 3) return 2;
    const std::string service = values[1], certificates = values[2];
    const QGuiApplication application(count, values);
    ombrivane::Platform::install(ombrivane::view::qtPlatform(certificates));
    ombrivane::ServiceHosts::use({.production = service, .test = service});

    int result = 1;
    {
        QQmlApplicationEngine engine;
        engine.load(QUrl("qrc:/wallet/" EXAMPLE_WALLET ".qml"));
        if (engine.rootObjects().isEmpty()) return 1;
        if (count > 3)
            endOnce(engine.rootObjects().constFirst()->findChild<ombrivane::view::OmbrivaneSession*>());
        result = QGuiApplication::exec();
    }
    ombrivane::Platform::endNetwork();
    return result;
}
