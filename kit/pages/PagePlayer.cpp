#include "pages/PagePlayer.h"

#include "device/QtMainQueue.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QPointer>
#include <QTimer>

#include <stdexcept>
#include <utility>

namespace ombrivane::kit {

PagePlayer::PagePlayer(Platform ports) {
    if (!std::dynamic_pointer_cast<view::QtMainQueue>(ports.mainQueue))
        throw std::invalid_argument("PagePlayer wants the ports of qtPlatform, with their main queue.");
    ports.clock = clock_;
    ports.photos = photos_;
    ports.reachability = reachability_;
    ports.urls = std::make_shared<journey::ReportedUrls>(log_);
    ports.sharing = std::make_shared<journey::ReportedSharing>(log_);
    ports.diagnostics = std::make_shared<journey::ReportedDiagnostics>(log_, false);
    Platform::install(std::move(ports));
}

PagePlayer::~PagePlayer() {
    Platform::endNetwork();
    runUntil([] { return false; }, std::chrono::milliseconds(0)); // steps that its ending has left
    Platform::install({});
}

CompletionCallback PagePlayer::heardBy(CompletionCallback wallet) {
    return [log = log_, wallet = std::move(wallet)](auto dictionary, auto error) {
        log->event(journey::callbackEvent(dictionary, error));
        if (wallet) wallet(std::move(dictionary), std::move(error));
    };
}

journey::Ending PagePlayer::play(std::istream& lines, view::OmbrivaneSession& session) {
    const auto closing = QObject::connect(&session, &view::OmbrivaneSession::closed, &session, [this] {
        log_->event(Json{{"event", "closed"}});
    });
    // The wallet's page may go while it is played over: then nothing is open.
    const QPointer<view::OmbrivaneSession> held(&session);
    auto& queue = dynamic_cast<view::QtMainQueue&>(mainQueue());
    const auto ending = journey::Script({
                                            .runUntil = runUntil,
                                            .advance = [&queue](auto duration) { queue.advance(duration); },
                                            .open =
                                                [&held] {
                                                    if (held) held->open();
                                                },
                                            .destroy =
                                                [&held] {
                                                    if (held) held->drop();
                                                },
                                            .restore =
                                                [&held](const std::string& state) {
                                                    if (!held) return;
                                                    held->drop();
                                                    held->restoreState(QString::fromStdString(state));
                                                    held->open();
                                                },
                                            .navigator = [&held]() -> Navigator* {
                                                return held ? held->navigator() : nullptr;
                                            },
                                            .faulted = [] { return false; }, // a fault ends the process
                                            .log = *log_,
                                            .clock = *clock_,
                                            .reachability = *reachability_,
                                            .photos = *photos_,
                                        })
                            .play(lines);
    QObject::disconnect(closing);
    return ending;
}

bool PagePlayer::runUntil(const std::function<bool()>& done, std::chrono::milliseconds limit) {
    const QDeadlineTimer deadline(limit);
    QTimer tick; // wakes the loop so that the condition is looked at
    tick.start(std::chrono::milliseconds(5));
    do {
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (done()) return true;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    } while (!deadline.hasExpired());
    return done();
}

} // namespace ombrivane::kit
