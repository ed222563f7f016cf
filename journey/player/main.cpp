#include "EventLog.h"
#include "Onlooker.h"
#include "Options.h"
#include "Script.h"
#include "ScriptedPorts.h"
#include "base/Fault.h"
#include "base/SharedInstance.h"
#include "platform/DirectoryBundles.h"
#include "platform/HeadlessPlatform.h"
#include "platform/SystemLocalization.h"
#include "services/ServiceHosts.h"
#include "session/OmbrivaneView.h"
#include "session/Reservations.h"

#include <atomic>
#include <fstream>
#include <iostream>
#include <thread>

namespace {

using namespace ombrivane;
using namespace ombrivane::journey;

/// A wallet that shows the component and nothing else.
class Wallet {
public:
    explicit Wallet(const Options& options) : options_(options) {
        setFaultHandler([this](const std::string& text) {
            faulted_ = true;
            log_->event(Json{{"event", "fault"}, {"text", text}});
        });
        installPlatform();
        auto hosts = ServiceHosts::current();
        if (options.testHost) hosts.test = *options.testHost;
        if (options.productionHost) hosts.production = *options.productionHost;
        ServiceHosts::use(hosts);
        receipts_ = Reservations::shared().observe([this] {
            while (const auto reserved = Reservations::shared().take()) {
                log_->event(
                    Json{{"event", "reservation"}, {"PNR", reserved->at("bookingSummary").value("PNR", "")}});
            }
        });
    }

    Wallet(const Wallet&) = delete;
    Wallet& operator=(const Wallet&) = delete;

    ~Wallet() {
        drop();
        Platform::endNetwork();
        loop_->runUntil([] { return false; }, std::chrono::milliseconds(0));
        dropSharedInstances();
        setFaultHandler(nullptr);
    }

    Ending play(std::istream& script) {
        open();
        const Ending ending = Script(stage()).play(script);
        drop();
        if (!options_.record.empty()) std::ofstream(options_.record) << recorded_;
        return ending;
    }

private:
    void installPlatform() {
        Platform ports = headlessPlatform(loop_, options_.ca);
        ports.reachability = reachability_;
        ports.clock = clock_;
        if (!options_.fonts.empty())
            ports.bundles = std::make_shared<DirectoryBundles>("com.framework.Ombrivane", options_.fonts);
        const auto localization = std::make_shared<SystemLocalization>();
        if (options_.locale) localization->useLocale(*options_.locale);
        if (options_.timeZone) localization->useTimeZone(*options_.timeZone);
        ports.localization = localization;
        ports.photos = photos_;
        ports.urls = std::make_shared<ReportedUrls>(log_);
        ports.sharing = std::make_shared<ReportedSharing>(log_);
        ports.diagnostics = std::make_shared<ReportedDiagnostics>(log_, options_.diagnostics);
        ports.system = options_.system;
        if (options_.now) clock_->startAt(*options_.now);
        if (options_.reachability) reachability_->say(*options_.reachability);
        Platform::install(std::move(ports));
    }

    Stage stage() {
        return {
            .runUntil = [this](const auto& done, auto limit) { return loop_->runUntil(done, limit); },
            .advance = [this](auto duration) { loop_->advance(duration); },
            .open = [this] { open(); },
            .destroy = [this] { drop(); },
            .restore = [this](const auto& state) { open(state); },
            .navigator = [this] { return view_ ? view_->navigator() : nullptr; },
            .faulted = [this] { return faulted_.load(); },
            .log = *log_,
            .clock = *clock_,
            .reachability = *reachability_,
            .photos = *photos_,
        };
    }

    /// As a page is let go of before its component.
    void drop() {
        if (view_ && !options_.record.empty()) recorded_ = view_->recording();
        onlooker_.follow(nullptr);
        view_.reset();
    }

    void open(const std::string& kept = "") {
        drop();
        view_ = std::make_unique<OmbrivaneView>(
            options_.clientId,
            options_.clientSecret,
            options_.userType,
            options_.walletBalance,
            options_.phone,
            options_.environment,
            [this](auto dictionary, auto error) { receive(dictionary, error); });
        const auto close = [this] {
            log_->event(Json{{"event", "closed"}});
            drop();
        };
        view_->onClose(close, close);
        if (!kept.empty()) view_->restoreState(kept);
        if (!options_.record.empty()) view_->record();
        guarded([this] { view_->show(); });
        if (view_) onlooker_.follow(view_->navigator());
    }

    void receive(const std::optional<Dictionary>& dictionary, const std::optional<Error>& error) {
        Json event = callbackEvent(dictionary, error);
        event["thread"] = std::this_thread::get_id() == mainThread_ ? "main" : "network";
        log_->event(std::move(event));
    }

    Options options_;
    std::thread::id mainThread_ = std::this_thread::get_id();
    std::shared_ptr<RunLoop> loop_ = std::make_shared<RunLoop>();
    std::shared_ptr<EventLog> log_ = std::make_shared<EventLog>([loop = loop_] { loop->async([] {}); });
    std::shared_ptr<AdjustableClock> clock_ = std::make_shared<AdjustableClock>();
    std::shared_ptr<ScriptedReachability> reachability_ = std::make_shared<ScriptedReachability>();
    std::shared_ptr<ScriptedPhotos> photos_ = std::make_shared<ScriptedPhotos>();
    std::atomic<bool> faulted_ = false;
    std::unique_ptr<OmbrivaneView> view_;
    std::string recorded_; ///< of the view that was dropped last
    Onlooker onlooker_;
    Subscription receipts_;
};

} // namespace

int main(int count, char** values) {
    Options options;
    try {
        options = Options::parse({values + 1, values + count});
    } catch (const std::invalid_argument& bad) {
        std::cerr << "ombrivane-journey: " << bad.what() << "\n";
        return static_cast<int>(Ending::badLine);
    }
    if (options.help) {
        std::cout << Options::usage() << Script::help();
        return 0;
    }
    Wallet wallet(options);
    if (options.script == "-") return static_cast<int>(wallet.play(std::cin));
    std::ifstream script(options.script);
    if (!script) {
        std::cerr << "ombrivane-journey: there is no script " << options.script << "\n";
        return static_cast<int>(Ending::badLine);
    }
    return static_cast<int>(wallet.play(script));
}
