#include "Wallet.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <new>
#include <utility>

namespace ombrivane {
namespace {

/// Counts the calls of one port. The call that is to fail does, and those after it where it fails for ever.
class Failing {
public:
    Failing(std::size_t failing, bool forEver) : failing_(failing), forEver_(forEver) {}
    bool fails() {
        const std::size_t call = calls_++;
        return call == failing_ || (forEver_ && call > failing_);
    }
    std::size_t calls() const { return calls_; }
    static constexpr std::size_t none = SIZE_MAX;

private:
    std::size_t calls_ = 0;
    std::size_t failing_;
    bool forEver_;
};

using Calls = std::shared_ptr<Failing>;

class FailingReachability final : public ReachabilityMeasure {
public:
    explicit FailingReachability(Calls calls) : calls_(std::move(calls)) {}
    std::optional<std::uint32_t> flags(const std::string& /*host*/) override {
        return calls_->fails() ? std::nullopt : std::optional<std::uint32_t>(reachableFlag);
    }

private:
    Calls calls_;
};

class FailingCodec final : public ImageCodec {
public:
    explicit FailingCodec(Calls calls, bool throws) :
        inner_(platform().images), calls_(std::move(calls)), throws_(throws) {}
    std::optional<Image> decode(const std::string& bytes, const PictureLimits& limits) override {
        return fails() ? std::nullopt : inner_->decode(bytes, limits);
    }
    std::optional<std::string> jpeg(const Image& image, double quality) override {
        return fails() ? std::nullopt : inner_->jpeg(image, quality);
    }
    std::optional<std::string> png(const Image& image) override {
        return fails() ? std::nullopt : inner_->png(image);
    }
    std::optional<std::string> pngOfJpeg(const std::string& jpeg, const PictureLimits& limits) override {
        return fails() ? std::nullopt : inner_->pngOfJpeg(jpeg, limits);
    }

private:
    bool fails() {
        if (!calls_->fails()) return false;
        if (throws_) throw std::bad_alloc();
        return true;
    }
    std::shared_ptr<ImageCodec> inner_;
    Calls calls_;
    bool throws_;
};

/// In front of the network that the wallet answers for.
class FailingNetwork final : public Network {
public:
    FailingNetwork(std::shared_ptr<Network> inner, Calls calls, HttpAnswer answer) :
        inner_(std::move(inner)), calls_(std::move(calls)), answer_(std::move(answer)) {}
    void send(HttpRequest request, HttpCompletion completion) override {
        if (!calls_->fails()) return inner_->send(std::move(request), std::move(completion));
        inner_->send(std::move(request),
                     [completion = std::move(completion), answer = answer_](const HttpAnswer&) {
                         completion(answer);
                     });
    }
    void fetchPicture(const std::string& url, HttpCompletion completion) override {
        HttpRequest request;
        request.url = url;
        send(std::move(request), std::move(completion));
    }

private:
    std::shared_ptr<Network> inner_;
    Calls calls_;
    HttpAnswer answer_;
};

class FailingClock final : public Clock {
public:
    FailingClock(Calls calls, Date instead) : calls_(std::move(calls)), instead_(instead) {}
    Date now() override { return calls_->fails() ? instead_ : inner_->now(); }

private:
    std::shared_ptr<Clock> inner_ = platform().clock;
    Calls calls_;
    Date instead_;
};

/// A device that forgets what it speaks and where it is, or names what nobody knows.
class FailingLocalization final : public Localization {
public:
    FailingLocalization(Calls calls, std::string instead) :
        calls_(std::move(calls)), instead_(std::move(instead)) {}
    std::string localized(const std::string& key, const std::string& comment) override {
        return calls_->fails() ? instead_ : inner_->localized(key, comment);
    }
    std::string locale() override { return calls_->fails() ? instead_ : inner_->locale(); }
    std::string timeZone() override { return calls_->fails() ? instead_ : inner_->timeZone(); }

private:
    std::shared_ptr<Localization> inner_ = platform().localization;
    Calls calls_;
    std::string instead_;
};

class FailingBundles final : public ResourceBundles {
public:
    explicit FailingBundles(Calls calls) : calls_(std::move(calls)) {}
    bool contains(const std::string& /*identifier*/) override { return true; }
    std::optional<std::vector<std::string>> urls(const std::string& /*identifier*/,
                                                 const std::string& /*extension*/) override {
        if (calls_->fails()) return std::nullopt;
        return std::vector<std::string>{"one.ttf"};
    }

private:
    Calls calls_;
};

/// In front of the photos that the wallet picks: fails by answering while it is opened.
class FailingPhotos final : public PhotoLibrary {
public:
    FailingPhotos(Calls calls, bool cancelled) : calls_(std::move(calls)), cancelled_(cancelled) {}
    void present(Handler handler) override {
        if (calls_->fails()) return handler({cancelled_, std::nullopt});
        inner_->present(std::move(handler));
    }
    void dismiss() override { inner_->dismiss(); }

private:
    std::shared_ptr<PhotoLibrary> inner_ = platform().photos;
    Calls calls_;
    bool cancelled_;
};

struct Torture {
    const char* name;
    std::function<void(Platform&, const Calls&)> install;
};

Torture clockAt(const char* name, const char* moment) {
    return {name, [moment](Platform& ports, const Calls& calls) {
                ports.clock = std::make_shared<FailingClock>(calls, parseIso(moment).value());
            }};
}

Torture speaking(const char* name, const char* instead) {
    return {name, [instead](Platform& ports, const Calls& calls) {
                ports.localization = std::make_shared<FailingLocalization>(calls, instead);
            }};
}

Torture picking(const char* name, bool cancelled) {
    return {name, [cancelled](Platform& ports, const Calls& calls) {
                ports.photos = std::make_shared<FailingPhotos>(calls, cancelled);
            }};
}

Torture answering(const char* name, const HttpAnswer& answer) {
    return {name, [answer](Platform& ports, const Calls& calls) {
                ports.network = std::make_shared<FailingNetwork>(ports.network, calls, answer);
            }};
}

const Torture tortures[] = {
    answering("no connection", {std::nullopt, Error{"Network", 7, "Not reached."}}),
    answering("nothing", {std::nullopt, std::nullopt}),
    answering("no content", {"", std::nullopt}),
    answering("a refusal", {R"({"success":false,"data":{"error":"No."}})", std::nullopt}),
    answering("an empty list", {R"({"success":true,"hasRestrictions":false,"data":[]})", std::nullopt}),
    {"offline",
     [](Platform& ports, const Calls& calls) {
         ports.reachability = std::make_shared<FailingReachability>(calls);
     }},
    {"no picture",
     [](Platform& ports, const Calls& calls) {
         ports.images = std::make_shared<FailingCodec>(calls, false);
     }},
    {"no memory for pictures",
     [](Platform& ports, const Calls& calls) { ports.images = std::make_shared<FailingCodec>(calls, true); }},
    clockAt("a clock that was never set", "1970-01-01T00:00:00Z"),
    clockAt("a clock of the far future", "9999-12-31T23:59:59Z"),
    speaking("no language and no zone", ""),
    speaking("an unknown language and zone", "qq_QQ@calendar=none;numbers=none"),
    {"no fonts",
     [](Platform& ports, const Calls& calls) { ports.bundles = std::make_shared<FailingBundles>(calls); }},
    picking("a picker that closes at once", true),
    picking("a picker that opens no picture", false),
};

class TortureTest : public testing::TestWithParam<std::tuple<Trip, bool>> {};

INSTANTIATE_TEST_SUITE_P(Trips, TortureTest, everyTrip, tripName);

/// Of each port every call of a booking fails, once and for ever. No fault, every completion is answered,
/// nothing is handed over twice.
TEST_P(TortureTest, EveryCallOfEveryPortMayFail) {
    const auto& [trip, documents] = GetParam();
    for (const Torture& torture : tortures) {
        const auto callsOf = [&](std::size_t failing, bool forEver, std::size_t handedOver) {
            SCOPED_TRACE(std::string(torture.name) + " at call " + std::to_string(failing) +
                         (forEver ? " and for ever" : ""));
            fakes::World world;
            const auto calls = std::make_shared<Failing>(failing, forEver);
            Platform ports = platform();
            torture.install(ports, calls);
            Platform::install(ports);
            Wallet wallet(world, trip, documents);
            insist(wallet);
            wallet.settle();
            EXPECT_EQ(world.takeFaults(), std::vector<std::string>());
            EXPECT_LE(wallet.handedOver.size(), 1U);
            EXPECT_GE(wallet.handedOver.size(), handedOver);
            for (const auto& word : wallet.heard)
                EXPECT_FALSE(word.starts_with("late ")) << word;
            return calls->calls();
        };
        const std::size_t calls = callsOf(Failing::none, false, 1);
        // Dates are written by the hundred: of those calls every so many fail.
        const std::size_t step = 1 + calls / 50;
        for (std::size_t failing = 0; failing < calls; failing += step) {
            callsOf(failing, false, 0);
            callsOf(failing, true, 0);
        }
    }
}

} // namespace
} // namespace ombrivane
