#pragma once

#include "EventLog.h"
#include "platform/Platform.h"
#include "platform/RouteReachability.h"

#include <atomic>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace ombrivane::journey {

/// Measures the route, unless the script says what the flag word is.
class ScriptedReachability final : public ReachabilityMeasure {
public:
    std::optional<std::uint32_t> flags(const std::string& host) override;
    /// The flag word from here on: 2 is online, 0 is not.
    void say(std::uint32_t word) { said_ = word; }

private:
    static constexpr std::int64_t measured = -1;

    RouteReachability route_;
    std::atomic<std::int64_t> said_ = measured;
};

/// Answers the picker with what the script has picked, at once or as soon as it opens.
class ScriptedPhotos final : public PhotoLibrary {
public:
    void present(Handler handler) override;
    void dismiss() override { open_.reset(); }
    /// The next answer of the picker. Main thread.
    void pick(Picked picked);

private:
    void answer();

    std::shared_ptr<const Handler> open_; ///< what is on its way to it is told only while it is
    std::deque<Picked> answers_;
};

/// Reports the calls that failed, and prints every line where it is asked to.
class ReportedDiagnostics final : public Diagnostics {
public:
    /// @param log hears of each call that failed
    /// @param prints whether each line is printed as well
    ReportedDiagnostics(std::shared_ptr<EventLog> log, bool prints) : log_(std::move(log)), prints_(prints) {}

    void print(std::string_view line) override {
        if (prints_) printed_.print(line);
    }
    void callFailed(const FailedCall& call) override;

private:
    std::shared_ptr<EventLog> log_;
    bool prints_;
    PrintedDiagnostics printed_;
};

/// Reports what the component opens.
class ReportedUrls final : public UrlOpener {
public:
    /// @param log hears of each address
    explicit ReportedUrls(std::shared_ptr<EventLog> log) : log_(std::move(log)) {}
    void openUrl(const std::string& url) override {
        log_->event(Json{{"event", "opened-url"}, {"url", url}});
    }

private:
    std::shared_ptr<EventLog> log_;
};

/// Reports what the component shares.
class ReportedSharing final : public ShareSheet {
public:
    /// @param log hears of each address
    explicit ReportedSharing(std::shared_ptr<EventLog> log) : log_(std::move(log)) {}
    void share(const std::string& url) override { log_->event(Json{{"event", "shared"}, {"url", url}}); }

private:
    std::shared_ptr<EventLog> log_;
};

} // namespace ombrivane::journey
