#include "DemoWallet.h"

#include "Brands.h"
#include "Onscreen.h"
#include "appearance/ThemedScope.h"
#include "base/Fault.h"
#include "base/SharedInstance.h"
#include "device/QtPlatform.h"
#include "keyed/Navigator.h"
#include "pages/PagePlayer.h"
#include "platform/SystemLocalization.h"
#include "services/ServiceHosts.h"

#include <QDir>
#include <QFontDatabase>

#include <fstream>
#include <iostream>
#include <stdexcept>

namespace ombrivane::demo {
namespace {

using journey::Ending;
using kit::PagePlayer;

/// The wallet is written in the component's letters, from its first frame on.
void addFonts() {
    const QDir folder(":/com.framework.Ombrivane/fonts");
    for (const QString& file : folder.entryList({"*.ttf"}, QDir::Files, QDir::Name))
        QFontDatabase::addApplicationFont(folder.filePath(file));
}

std::vector<std::string> namesOf(const QStringList& names) {
    std::vector<std::string> all;
    for (const QString& name : names)
        all.push_back(name.toStdString());
    return all;
}

} // namespace

DemoWallet::DemoWallet(DemoOptions options, sandbox::Sandbox* service) :
    options_(std::move(options)),
    service_(service),
    account_(options_.walletBalance),
    conditions_(service != nullptr) {
    started_.start();
    setFaultHandler([this](const std::string& text) {
        faulted_ = true;
        log_->event(Json{{"event", "fault"}, {"text", text}});
    });
    installPlatform();
    makeWindow();
    if (window_ != nullptr) listen();
}

/// Everything that the ports and their threads may still call goes after them, and they go before the
/// application.
DemoWallet::~DemoWallet() {
    if (session_ != nullptr) session_->drop();
    figures_.reset();
    window_ = nullptr;
    session_ = nullptr;
    engine_.reset();
    Platform::endNetwork();
    PagePlayer::runUntil([] { return false; }, std::chrono::milliseconds(0));
    dropSharedInstances();
    Platform::install({});
    setFaultHandler(nullptr);
}

void DemoWallet::installPlatform() {
    Platform ports = view::qtPlatform(options_.ca);
    ports.mainQueue = queue_;
    ports.clock = clock_;
    if (!options_.isByHand()) ports.reachability = scripted_;
    reachability_ = std::make_shared<SwitchedReachability>(ports.reachability);
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
    addFonts();
    if (options_.dark) conditions_.setLook("dark");
    if (options_.textScale) conditions_.setTextScale(*options_.textScale);
    if (options_.language) conditions_.setLanguage(QString::fromStdString(*options_.language));
    conditions_.setBrand(options_.brand);
    QStringList scenarios;
    for (const auto& name : options_.scenarios)
        scenarios.append(QString::fromStdString(name));
    conditions_.begin(service_ != nullptr ? scenarios : QStringList());
    engine_ = std::make_unique<QQmlApplicationEngine>();
    engine_->addImportPath("qrc:/com.framework.Ombrivane/demo");
    engine_->setInitialProperties({{"account", QVariant::fromValue(&account_)},
                                   {"conditions", QVariant::fromValue(&conditions_)},
                                   {"phoneWidth", options_.width},
                                   {"phoneHeight", options_.height},
                                   {"showsStrip", options_.isByHand() || options_.strip}});
    engine_->load(QUrl("qrc:/com.framework.Ombrivane/demo/OmbrivaneDemo/Wallet.qml"));
    if (engine_->rootObjects().isEmpty()) return;
    window_ = qobject_cast<QQuickWindow*>(engine_->rootObjects().constFirst());
    figures_ = std::make_unique<Figures>(*window_, started_);
    follow();
    if (options_.stillMotion) window_->findChild<view::ThemedScope*>("component")->setMotionReduced(true);
    session_ = window_->findChild<view::OmbrivaneSession*>();
    session_->clientId = QString::fromStdString(options_.clientId);
    session_->clientSecret = QString::fromStdString(options_.clientSecret);
    if (options_.region) session_->setRegion(QString::fromStdString(*options_.region));
}

/// What the conditions say of the look and the language.
void DemoWallet::follow() {
    account_.setLocale(locale());
    const int brand = conditions_.brand();
    const bool isOne = brand >= 0 && brand < brands().size();
    window_->findChild<view::ThemedScope*>("component")
        ->setAppearance(isOne ? brands().at(brand).appearance : view::Appearance());
}

QLocale DemoWallet::locale() const {
    const QLocale device(QString::fromStdString(platform().localization->locale()));
    const QString language = conditions_.language();
    if (language == "device") return device;
    const QString tag = language.isEmpty() ? QStringLiteral("en") : language;
    const QLocale own(tag);
    const QLocale::Territory territory =
        options_.region      ? QLocale::codeToTerritory(QString::fromStdString(*options_.region))
        : language.isEmpty() ? device.territory()
                             : own.territory();
    return {own.language(), territory};
}

void DemoWallet::listen() {
    session_->setCallback([this](auto dictionary, auto error) { receive(dictionary, error); });
    QObject::connect(session_, &view::OmbrivaneSession::closed, window_, [this] {
        if (!options_.script.empty()) log_->event(Json{{"event", "closed"}});
        QMetaObject::invokeMethod(window_, "closeComponent");
    });
    QObject::connect(&account_, &WalletAccount::kept, window_, [this](const QString& number) {
        if (!options_.script.empty())
            log_->event(Json{{"event", "reservation"}, {"PNR", number.toStdString()}});
    });
    QObject::connect(&conditions_, &Conditions::changed, window_, [this] { follow(); });
    QObject::connect(&conditions_, &Conditions::turned, window_, [this] {
        reachability_->setOffline(conditions_.isOffline());
        if (service_ != nullptr) service_->setScenarios(namesOf(conditions_.scenarios()));
    });
}

void DemoWallet::receive(const std::optional<Dictionary>& dictionary, const std::optional<Error>& error) {
    if (error) {
        queue_->async(
            [this, text = QString::fromStdString(error->localizedDescription)] { account_.end(text); });
    }
    if (options_.script.empty()) return;
    Json event =
        journey::callbackEvent(dictionary ? std::optional(withoutToken(*dictionary)) : std::nullopt, error);
    event["thread"] = std::this_thread::get_id() == mainThread_ ? "main" : "network";
    log_->event(std::move(event));
}

Navigator* DemoWallet::watched() {
    const Navigator* stack = session_->navigator();
    if (options_.pace > 0 && stack != nullptr && seen_ != stack->top()->name()) {
        seen_ = stack->top()->name();
        PagePlayer::runUntil([] { return false; }, std::chrono::milliseconds(options_.pace));
    }
    return session_->navigator();
}

journey::Stage DemoWallet::stage() {
    return {
        .runUntil = PagePlayer::runUntil,
        .advance = [this](auto duration) { queue_->advance(duration); },
        .open = [this] { QMetaObject::invokeMethod(window_, "openComponent"); },
        .destroy = [this] { QMetaObject::invokeMethod(window_, "closeComponent"); },
        .navigator = [this] { return watched(); },
        .faulted = [this] { return faulted_.load(); },
        .log = *log_,
        .clock = *clock_,
        .reachability = *scripted_,
        .photos = *photos_,
    };
}

int DemoWallet::playScript() {
    if (options_.script == "-") return play(std::cin);
    std::ifstream lines(options_.script);
    return play(lines);
}

int DemoWallet::play(std::istream& lines) {
    QMetaObject::invokeMethod(window_, "openComponent");
    journey::Script script(stage());
    script.addCommand("texts", [this](const std::string&) {
        log_->answer(Json{{"texts", visibleTexts(*window_)}});
    });
    script.addCommand("picture", [this](const std::string& file) { writePicture(file); });
    script.addCommand(
        "look", [this](const std::string& name) { writePicture(options_.pictures + "/" + name + ".png"); });
    script.addCommand("click", [this](const std::string& name) { click(name); });
    script.addCommand("faults", [this](const std::string& fault) { setFaults(fault); });
    script.addCommand("figures", [this](const std::string&) {
        log_->answer(Json{{"figures", figures_->json()}});
    });
    return static_cast<int>(script.play(lines));
}

void DemoWallet::click(const std::string& name) {
    const QQuickItem* item = nullptr;
    const auto isThere = [&] {
        QQuickItem* found = visibleItem(*window_, QString::fromStdString(name));
        item = found;
        if (found == nullptr || found->width() <= 0 || found->height() <= 0) return false;
        if (!isInside(*found)) found->forceActiveFocus(Qt::OtherFocusReason); // which brings it into view
        return isInside(*found);
    };
    if (!PagePlayer::runUntil(isThere, std::chrono::seconds(10)))
        throw std::invalid_argument("there is nothing to click on that is called " + name);
    pressOn(*item, true);
    PagePlayer::runUntil([] { return false; }, std::chrono::milliseconds(0));
    pressOn(*item, false);
}

void DemoWallet::setFaults(const std::string& fault) {
    if (service_ == nullptr) throw std::invalid_argument("faults are of the demo's own booking service");
    service_->setFaults(fault.empty() ? std::vector<std::string>() : std::vector{fault});
}

bool DemoWallet::hasSearch() const {
    const Navigator* stack = session_->navigator();
    return stack != nullptr && stack->find("MainView") != nullptr;
}

void DemoWallet::writePicture(const std::string& file) {
    // The page of the search is made a piece at a time.
    PagePlayer::runUntil([this] { return !hasSearch() || visibleItem(*window_, "starting") == nullptr; },
                         std::chrono::seconds(10));
    // Pictures from addresses and slides arrive within this time.
    PagePlayer::runUntil([] { return false; }, std::chrono::milliseconds(options_.stillMotion ? 150 : 400));
    const bool written = lightened(window_->grabWindow()).save(QString::fromStdString(file));
    if (!written) throw std::runtime_error("there is no writing to " + file);
    log_->answer(Json{{"picture", file}});
}

int DemoWallet::takePicture(const std::string& file) {
    QMetaObject::invokeMethod(window_, "openComponent");
    if (!PagePlayer::runUntil([this] { return hasSearch(); }, std::chrono::seconds(10)))
        return static_cast<int>(Ending::expectationFailed);
    try {
        writePicture(file);
    } catch (const std::runtime_error& failure) {
        log_->answer(Json{{"failed", failure.what()}});
        return static_cast<int>(Ending::badLine);
    }
    return 0;
}

} // namespace ombrivane::demo
