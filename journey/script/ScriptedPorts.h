#pragma once

#include "EventLog.h"
#include "platform/Platform.h"
#include "platform/RouteReachability.h"

#include <atomic>
#include <deque>
#include <optional>
#include <string>

namespace ombrivane::journey {

/// Measures the route, unless the script says what the flag word is.
class ScriptedReachability final : public ReachabilityMeasure {
public:
    std::optional<std::uint32_t> flags(const std::string& host) override;
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
    void dismiss() override { open_ = nullptr; }
    void pick(Picked picked);

private:
    void answer();

    Handler open_;
    std::deque<Picked> answers_;
};

/// Reports the calls that failed, and prints every line where it is asked to.
class ReportedDiagnostics final : public Diagnostics {
public:
    ReportedDiagnostics(EventLog& log, bool prints) : log_(log), prints_(prints) {}

    void print(std::string_view line) override {
        if (prints_) printed_.print(line);
    }
    void callFailed(const FailedCall& call) override;

private:
    EventLog& log_;
    bool prints_;
    PrintedDiagnostics printed_;
};

/// Reports what the component opens and shares.
class ReportedUrls final : public UrlOpener {
public:
    explicit ReportedUrls(EventLog& log) : log_(log) {}
    void openUrl(const std::string& url) override { log_.event(Json{{"event", "opened-url"}, {"url", url}}); }

private:
    EventLog& log_;
};

class ReportedSharing final : public ShareSheet {
public:
    explicit ReportedSharing(EventLog& log) : log_(log) {}
    void share(const std::string& url) override { log_.event(Json{{"event", "shared"}, {"url", url}}); }

private:
    EventLog& log_;
};

} // namespace ombrivane::journey
