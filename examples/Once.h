#pragma once

#include "items/OmbrivaneSession.h"
#include "keyed/Navigator.h"
#include "platform/Platform.h"

#include <QCoreApplication>
#include <QTimer>

/// For the examples as tests: ends the program with 0 once the search is there.
inline void endOnce(ombrivane::view::OmbrivaneSession* session) {
    auto* timer = new QTimer(session);
    QObject::connect(timer, &QTimer::timeout, session, [session] {
        if (session->navigator() == nullptr || session->navigator()->find("MainView") == nullptr) return;
        session->drop();
        QCoreApplication::exit(0);
    });
    timer->start(std::chrono::milliseconds(20));
}
