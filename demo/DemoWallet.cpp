#include "DemoWallet.h"

#include "appearance/ThemedScope.h"
#include "base/Fault.h"
#include "base/SharedInstance.h"
#include "device/QtPlatform.h"
#include "platform/SystemLocalization.h"
#include "services/ServiceHosts.h"
#include "session/Reservations.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QQuickItem>
#include <QTimer>

#include <fstream>
#include <iostream>

namespace ombrivane::demo {
namespace {

using journey::Ending;

constexpr int shownReceipts = 20;

/// Every text item below `item` that can be seen, with where it stands.
void collectTexts(const QQuickItem* item, Json& texts) {
    if (!item->isVisible() || item->opacity() == 0) return;
    if (item->inherits("QQuickText")) {
        const QRectF place = item->mapRectToScene(item->boundingRect());
        texts.push_back(
            Json{{"text", item->property("text").toString().toStdString()},
                 {"format", item->property("textFormat").toInt() == Qt::PlainText ? "plain" : "other"},
                 {"name",
                  QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(item)) != nullptr
                      ? QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(item))
                            ->text(QAccessible::Name)
                            .toStdString()
                      : ""},
                 {"rectangle", {place.x(), place.y(), place.width(), place.height()}}});
    }
    for (const QQuickItem* child : item->childItems())
        collectTexts(child, texts);
}

} // namespace

DemoWallet::DemoWallet(DemoOptions options) : options_(std::move(options)) {
    setFaultHandler([this](const std::string& text) {
        faulted_ = true;
        log_.event(Json{{"event", "fault"}, {"text", text}});
    });
    installPlatform();
    makeWindow();
    if (window_ != nullptr) listen();
}

DemoWallet::~DemoWallet() {
    receipts_.cancel();
    window_ = nullptr;
    engine_.reset();
    Platform::endNetwork();
    runUntil([] { return false; }, std::chrono::milliseconds(0));
    dropSharedInstances();
    setFaultHandler(nullptr);
}

void DemoWallet::installPlatform() {
    Platform ports = view::qtPlatform(options_.ca);
    ports.mainQueue = queue_;
    ports.clock = clock_;
    ports.reachability = reachability_;
    if (!options_.locale.empty() || !options_.timeZone.empty()) {
        const auto localization = std::make_shared<SystemLocalization>();
        if (!options_.locale.empty()) localization->useLocale(options_.locale);
        if (!options_.timeZone.empty()) localization->useTimeZone(options_.timeZone);
        ports.localization = localization;
    }
    if (!options_.script.empty()) {
        ports.photos = photos_;
        ports.diagnostics = std::make_shared<journey::ReportedDiagnostics>(log_, false);
        ports.urls = std::make_shared<journey::ReportedUrls>(log_);
        ports.sharing = std::make_shared<journey::ReportedSharing>(log_);
    }
    if (const auto now = parseIso(options_.now)) clock_->startAt(*now);
    Platform::install(std::move(ports));
    auto hosts = ServiceHosts::current();
    hosts.test = options_.testHost;
    ServiceHosts::use(hosts);
}

void DemoWallet::makeWindow() {
    engine_ = std::make_unique<QQmlApplicationEngine>();
    engine_->addImportPath("qrc:/com.framework.Ombrivane/demo");
    engine_->setInitialProperties(
        {{"balance", options_.walletBalance}, {"width", options_.width}, {"height", options_.height}});
    engine_->load(QUrl("qrc:/com.framework.Ombrivane/demo/OmbrivaneDemo/Wallet.qml"));
    if (engine_->rootObjects().isEmpty()) return;
    window_ = qobject_cast<QQuickWindow*>(engine_->rootObjects().constFirst());
    auto* component = window_->findChild<view::ThemedScope*>("component");
    if (options_.dark) component->setDark(true);
    if (options_.textScale) component->setTextScale(*options_.textScale);
    if (options_.stillMotion) component->setMotionReduced(true);
    session_ = window_->findChild<view::OmbrivaneSession*>();
    session_->clientId = QString::fromStdString(options_.clientId);
    session_->clientSecret = QString::fromStdString(options_.clientSecret);
    if (options_.language) session_->setLanguage(QString::fromStdString(*options_.language));
    if (options_.region) session_->setRegion(QString::fromStdString(*options_.region));
}

void DemoWallet::listen() {
    session_->setCallback([this](auto dictionary, auto error) { receive(dictionary, error); });
    receipts_ = Reservations::shared().observe([this] {
        while (const auto reserved = Reservations::shared().take()) {
            const std::string pnr = reserved->at("bookingSummary").value("PNR", "");
            if (!options_.script.empty()) log_.event(Json{{"event", "reservation"}, {"PNR", pnr}});
            addReceipt("Reserved: " + pnr);
        }
    });
    QObject::connect(session_, &view::OmbrivaneSession::closed, window_, [this] {
        if (!options_.script.empty()) log_.event(Json{{"event", "closed"}});
        QMetaObject::invokeMethod(window_, "closeComponent");
    });
}

void DemoWallet::receive(const std::optional<Dictionary>& dictionary, const std::optional<Error>& error) {
    Json event{{"event", "callback"}, {"dictionary", nullptr}, {"error", nullptr}};
    if (dictionary) event["dictionary"] = *dictionary;
    if (error) {
        event["error"] = Json{{"domain", error->domain},
                              {"code", error->code},
                              {"localizedDescription", error->localizedDescription}};
        queue_->async([this, text = "Failed: " + error->localizedDescription] { addReceipt(text); });
    }
    event["thread"] = std::this_thread::get_id() == mainThread_ ? "main" : "network";
    log_.event(std::move(event));
}

void DemoWallet::addReceipt(const std::string& text) {
    if (window_ == nullptr) return;
    auto receipts = window_->property("receipts").toStringList();
    receipts.prepend(QString::fromStdString(text));
    if (receipts.size() > shownReceipts) receipts.removeLast();
    window_->setProperty("receipts", receipts);
}

bool DemoWallet::runUntil(const std::function<bool()>& done, std::chrono::milliseconds limit) {
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

journey::Stage DemoWallet::stage() {
    return {
        .runUntil = [this](const auto& done, auto limit) { return runUntil(done, limit); },
        .advance = [this](auto duration) { queue_->advance(duration); },
        .open = [this] { QMetaObject::invokeMethod(window_, "openComponent"); },
        .destroy = [this] { QMetaObject::invokeMethod(window_, "closeComponent"); },
        .navigator = [this] { return session_->navigator(); },
        .faulted = [this] { return faulted_.load(); },
        .log = log_,
        .clock = *clock_,
        .reachability = *reachability_,
        .photos = *photos_,
    };
}

int DemoWallet::playScript() {
    QMetaObject::invokeMethod(window_, "openComponent");
    journey::Script script(stage());
    script.addCommand("texts", [this](const std::string&) { writeTexts(); });
    script.addCommand("picture", [this](const std::string& file) { writePicture(file); });
    script.addCommand(
        "look", [this](const std::string& name) { writePicture(options_.pictures + "/" + name + ".png"); });
    if (options_.script == "-") return static_cast<int>(script.play(std::cin));
    std::ifstream lines(options_.script);
    if (!lines) return static_cast<int>(Ending::badLine);
    return static_cast<int>(script.play(lines));
}

void DemoWallet::writeTexts() {
    Json texts = Json::array();
    collectTexts(window_->contentItem(), texts);
    log_.answer(Json{{"texts", texts}});
}

void DemoWallet::writePicture(const std::string& file) {
    // Pictures from addresses and slides arrive within this time.
    runUntil([] { return false; }, std::chrono::milliseconds(400));
    const bool written = window_->grabWindow().save(QString::fromStdString(file));
    log_.answer(Json{{"picture", file}, {"written", written}});
}

int DemoWallet::takePicture(const std::string& file) {
    QMetaObject::invokeMethod(window_, "openComponent");
    const bool shown = runUntil(
        [this] {
            return session_->navigator() != nullptr && session_->navigator()->find("MainView") != nullptr;
        },
        std::chrono::seconds(10));
    if (!shown) return static_cast<int>(Ending::expectationFailed);
    writePicture(file);
    return 0;
}

} // namespace ombrivane::demo
