#pragma once

#include "platform/Platform.h"

#include <optional>
#include <string>
#include <vector>

namespace ombrivane::fakes {

class FakeClock final : public Clock {
public:
    Date now() override { return time; }
    Date time = *parseIso("2026-11-21T09:30:00Z");
};

class FakeReachability final : public ReachabilityMeasure {
public:
    std::optional<std::uint32_t> flags(const std::string& host) override {
        asked = host;
        return word;
    }
    std::optional<std::uint32_t> word = reachableFlag;
    std::string asked;
};

/// One bundle with the font files that the test names.
class FakeBundles final : public ResourceBundles {
public:
    bool contains(const std::string& wanted) override { return wanted == identifier; }
    std::optional<std::vector<std::string>> urls(const std::string& wanted,
                                                 const std::string& extension) override {
        listedExtension = extension;
        return wanted == identifier ? fonts : std::nullopt;
    }
    std::string identifier = "com.framework.Ombrivane";
    std::optional<std::vector<std::string>> fonts{{"one.ttf", "two.ttf"}};
    std::string listedExtension;
};

class FakeFonts final : public FontRegistry {
public:
    void registerFont(const std::string& url) override { registered.push_back(url); }
    std::vector<std::string> registered;
};

class FakeLocalization final : public Localization {
public:
    std::string localized(const std::string& key, const std::string& /*comment*/) override { return key; }
    std::string locale() override { return localeName; }
    std::string timeZone() override { return zone; }
    std::string localeName = "en_US";
    std::string zone = "UTC";
};

/// Answers when the test says what the customer did.
class FakePhotos final : public PhotoLibrary {
public:
    void present(Handler handler) override { open = std::move(handler); }
    void dismiss() override { open = nullptr; }
    void pick(Picked picked) {
        const Handler handler = open;
        if (handler) handler(std::move(picked));
    }
    bool isOpen() const { return open != nullptr; }
    Handler open;
};

class FakeUrls final : public UrlOpener {
public:
    void openUrl(const std::string& url) override { opened.push_back(url); }
    std::vector<std::string> opened;
};

class FakeSharing final : public ShareSheet {
public:
    void share(const std::string& url) override { shared.push_back(url); }
    std::vector<std::string> shared;
};

class RecordedDiagnostics final : public Diagnostics {
public:
    void print(std::string_view line) override { lines.emplace_back(line); }
    void callFailed(const FailedCall& call) override { failedCalls.push_back(call.line()); }
    std::vector<std::string> lines;
    std::vector<std::string> failedCalls;
};

} // namespace ombrivane::fakes
