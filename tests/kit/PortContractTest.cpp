#include "ports/PortContract.h"

#include "platform/CurlNetwork.h"
#include "platform/HeadlessPlatform.h"
#include "platform/JpegPngCodec.h"
#include "script/ScriptedPorts.h"

#include "base/Fault.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <future>
#include <map>
#include <mutex>
#include <thread>

namespace ombrivane::kit {
namespace {

using std::chrono::milliseconds;

const std::shared_ptr<RunLoop> loop = std::make_shared<RunLoop>();
const RunUntil turn = [](const auto& done, auto limit) {
    const WorkItem tick = loop->every(milliseconds(5), [] {}); // what another thread did is looked at too
    loop->runUntil(done, limit);
};

/// Whether one of the findings begins like that.
bool tells(const Findings& findings, const std::string& beginning) {
    return std::any_of(findings.begin(), findings.end(), [&](const auto& finding) {
        return finding.starts_with(beginning);
    });
}

Image onePoint() { return {1, 1, std::make_shared<const std::vector<std::uint8_t>>(4, std::uint8_t(255))}; }

PhotoCustomer customerOf(const std::shared_ptr<journey::ScriptedPhotos>& photos) {
    return {.picks = [photos] { photos->pick({.cancelled = false, .editedImage = onePoint()}); },
            .cancels = [photos] { photos->pick({.cancelled = true, .editedImage = std::nullopt}); }};
}

TEST(PortContractTest, OurOwnPortsKeepToTheirHeaders) {
    const Platform ports = headlessPlatform(loop);
    Platform::install(ports);
    EXPECT_EQ(checkMainQueue(ports.mainQueue, turn), Findings());
    EXPECT_EQ(checkReachability(ports.reachability), Findings());
    EXPECT_EQ(checkClock(ports.clock), Findings());
    EXPECT_EQ(checkImageCodec(ports.images), Findings());
    EXPECT_EQ(checkLocalization(ports.localization), Findings());
    const auto photos = std::make_shared<journey::ScriptedPhotos>();
    EXPECT_EQ(checkPhotoLibrary(photos, customerOf(photos), turn), Findings());
    EXPECT_EQ(checkNetwork([](const std::string& caFile) {
                  return std::make_shared<CurlNetwork>(CurlSettings{.caFile = caFile});
              }),
              Findings());
    Platform::install({});
}

/// A main queue that does one thing otherwise than it promises.
struct WrongQueue final : MainQueue {
    enum class Fault { runsAtOnce, runsTwice, forgetsTicks, runsDropped, onOtherThread };
    explicit WrongQueue(Fault which) : fault(which) {}
    ~WrongQueue() override {
        while (true) {
            std::vector<std::thread> running;
            {
                const std::lock_guard lock(mutex);
                running.swap(threads);
            }
            if (running.empty()) return;
            for (auto& thread : running) {
                // The last owner may be a step on one of them.
                const bool isThisOne = thread.get_id() == std::this_thread::get_id();
                isThisOne ? thread.detach() : thread.join();
            }
        }
    }

    void async(Step step) override {
        if (fault == Fault::runsAtOnce) return (void)guarded(step);
        if (fault == Fault::onOtherThread) {
            const std::lock_guard lock(mutex); // a step on such a thread may ask for another one
            threads.emplace_back([step] { guarded(step); });
            return;
        }
        if (fault == Fault::runsTwice) loop->async(step);
        loop->async(std::move(step));
    }
    WorkItem after(Duration delay, Step step) override {
        if (fault != Fault::runsDropped) return loop->after(delay, std::move(step));
        kept.push_back(loop->after(delay, step));
        return WorkItem(std::make_shared<Step>(step));
    }
    WorkItem every(Duration interval, Step step) override {
        if (fault != Fault::forgetsTicks) return loop->every(interval, std::move(step));
        const auto last = std::make_shared<std::chrono::steady_clock::time_point>();
        return loop->every(interval, [last, interval, step] {
            const auto now = std::chrono::steady_clock::now();
            if (now - *last < interval / 2) return;
            *last = now;
            step();
        });
    }

    Fault fault;
    std::vector<WorkItem> kept;
    std::mutex mutex; // of the threads
    std::vector<std::thread> threads;
};

TEST(PortContractTest, FindsWhatAMainQueueDoesOtherwise) {
    using Fault = WrongQueue::Fault;
    const std::pair<Fault, const char*> table[] = {
        {Fault::runsAtOnce, "async: a step runs inside of the call"},
        {Fault::runsAtOnce, "async: a step of another thread runs there"},
        {Fault::onOtherThread, "async: a step runs on another thread than the main one"},
        {Fault::runsTwice, "async: a step is run more than once"},
        {Fault::forgetsTicks, "every: ticks that fell due while the queue stood still"},
        {Fault::runsDropped, "after: a step runs although its item was dropped"},
        {Fault::runsDropped, "after: what a step holds is not let go"},
    };
    std::map<Fault, Findings> found;
    for (const auto& [fault, sentence] : table) {
        if (found.count(fault) == 0) found[fault] = checkMainQueue(std::make_shared<WrongQueue>(fault), turn);
        EXPECT_TRUE(tells(found[fault], sentence)) << sentence << "\n"
                                                   << testing::PrintToString(found[fault]);
    }
    EXPECT_FALSE(checkMainQueue(nullptr, turn).empty());
}

/// A picker that does one thing otherwise than it promises.
struct WrongPhotos final : PhotoLibrary {
    enum class Fault { answersTwice, answersUnasked, answersAfterwards, onOtherThread, noPoints };
    explicit WrongPhotos(Fault which) : fault(which) {}

    void present(Handler given) override {
        handler = std::move(given);
        if (fault == Fault::answersUnasked) tell({});
    }
    void dismiss() override {
        if (fault != Fault::answersAfterwards) handler = nullptr;
    }
    void answer(const Picked& picked) {
        if (!handler) return;
        if (fault == Fault::answersTwice) tell(picked);
        if (fault == Fault::onOtherThread) return std::thread(handler, picked).join();
        tell(picked);
    }
    void tell(const Picked& picked) const {
        loop->async([to = handler, picked] { to(picked); });
    }

    Fault fault;
    Handler handler;
};

TEST(PortContractTest, FindsWhatAPickerDoesOtherwise) {
    using Fault = WrongPhotos::Fault;
    const std::pair<Fault, const char*> table[] = {
        {Fault::answersTwice, "present: the handler is called more than once when the customer picks"},
        {Fault::answersUnasked, "present: the handler is called before the customer did anything"},
        {Fault::answersAfterwards, "dismiss: the handler is called after it"},
        {Fault::onOtherThread, "present: the handler is called on another thread"},
        {Fault::noPoints, "present: a picture that was picked is missing, empty"},
    };
    for (const auto& [fault, sentence] : table) {
        const auto photos = std::make_shared<WrongPhotos>(fault);
        const auto picture = fault == Fault::noPoints ? Image{3, 2, onePoint().points} : onePoint();
        const auto findings = checkPhotoLibrary(
            photos,
            {.picks = [&] { photos->answer({.cancelled = false, .editedImage = picture}); },
             .cancels = [&] { photos->answer({.cancelled = true, .editedImage = std::nullopt}); }},
            turn);
        EXPECT_TRUE(tells(findings, sentence)) << sentence << "\n" << testing::PrintToString(findings);
    }
}

struct WrongReachability final : ReachabilityMeasure {
    explicit WrongReachability(std::optional<std::uint32_t> said) : word(said) {}
    std::optional<std::uint32_t> flags(const std::string& /*host*/) override { return word; }
    std::optional<std::uint32_t> word;
};

struct ThrowingReachability final : ReachabilityMeasure {
    std::optional<std::uint32_t> flags(const std::string& /*host*/) override {
        throw std::runtime_error("no radio");
    }
};

/// Never says anything, until it is let go.
struct SilentReachability final : ReachabilityMeasure {
    std::optional<std::uint32_t> flags(const std::string& /*host*/) override {
        end.get_future().wait();
        return std::nullopt;
    }
    std::promise<void> end;
};

struct WrongClock final : Clock {
    explicit WrongClock(milliseconds each) : step(each) {}
    Date now() override { return Date() + step * ++asked; }
    milliseconds step;
    std::atomic<int> asked = 0;
};

struct WrongLocalization final : Localization {
    std::string localized(const std::string& /*key*/, const std::string& /*comment*/) override { return ""; }
    std::string locale() override { return "English"; }
    std::string timeZone() override { return "5:45"; }
};

/// Passes every limit by.
struct WrongCodec final : ImageCodec {
    std::optional<Image> decode(const std::string& bytes, const PictureLimits& /*limits*/) override {
        return own.decode(bytes, documentLimits());
    }
    std::optional<std::string> jpeg(const Image& image, double quality) override {
        return own.jpeg(image, quality);
    }
    std::optional<std::string> png(const Image& image) override { return own.png(image); }
    std::optional<std::string> pngOfJpeg(const std::string& bytes, const PictureLimits& /*limits*/) override {
        return own.pngOfJpeg(bytes, documentLimits());
    }
    JpegPngCodec own;
};

TEST(PortContractTest, FindsWhatADeviceTellsOtherwise) {
    const auto reachability = [](std::optional<std::uint32_t> word) {
        return checkReachability(std::make_shared<WrongReachability>(word));
    };
    EXPECT_TRUE(tells(reachability(std::nullopt), "flags(\"localhost\"): gives no flag word"));
    EXPECT_TRUE(tells(reachability(0), "flags(\"::1\"): finds no way"));
    EXPECT_TRUE(tells(reachability(6), "flags(\"127.0.0.1\"): wants a connection"));
    EXPECT_TRUE(tells(checkReachability(std::make_shared<ThrowingReachability>()),
                      "flags(\"localhost\"): throws \"no radio\""));
    const auto silent = std::make_shared<SilentReachability>();
    EXPECT_EQ(checkReachability(silent),
              Findings{"flags(\"localhost\"): has not answered within three seconds"});
    silent->end.set_value();
    EXPECT_TRUE(tells(checkClock(std::make_shared<WrongClock>(milliseconds(0))), "now: stands still"));
    EXPECT_TRUE(tells(checkClock(std::make_shared<WrongClock>(milliseconds(-50))), "now: goes back"));
    EXPECT_TRUE(tells(checkClock(std::make_shared<WrongClock>(std::chrono::minutes(1))), "now: runs ahead"));
    EXPECT_EQ(checkLocalization(std::make_shared<WrongLocalization>()).size(), 3U);
    const auto codec = checkImageCodec(std::make_shared<WrongCodec>());
    EXPECT_TRUE(tells(codec, "decode: passes the limits by"));
    EXPECT_TRUE(tells(codec, "pngOfJpeg: passes the limits by"));
    EXPECT_EQ(codec.size(), 2U);
}

/// Passes requests on to a network of ours, and does one thing otherwise than it promises.
struct WrongNetwork final : Network {
    enum class Fault { answersTwice, sendsTwice, answersInside, sendsNothing };
    WrongNetwork(Fault which, const std::string& caFile) :
        fault(which), own(CurlSettings{.caFile = caFile}) {}

    void send(HttpRequest request, HttpCompletion completion) override {
        if (fault == Fault::answersInside) return completion({.error = Error{}});
        if (fault == Fault::sendsNothing) return;
        if (fault == Fault::sendsTwice) own.send(request, [](HttpAnswer) {});
        own.send(std::move(request), [this, completion](const HttpAnswer& answer) {
            completion(answer);
            if (fault == Fault::answersTwice) completion(answer);
        });
    }
    void fetchPicture(const std::string& /*url*/, HttpCompletion /*completion*/) override {}

    Fault fault;
    CurlNetwork own;
};

TEST(PortContractTest, FindsWhatANetworkDoesOtherwise) {
    using Fault = WrongNetwork::Fault;
    const std::pair<Fault, const char*> table[] = {
        {Fault::answersTwice, "send: a completion is called more than once"},
        {Fault::sendsTwice, "send: a request does not reach the service once"},
        {Fault::answersInside, "send: the completion is called inside of the call"},
        {Fault::sendsNothing, "send: a request is not answered"},
        {Fault::sendsNothing, "destruction: what is under way is not answered once"},
    };
    std::map<Fault, Findings> found;
    for (const auto& [fault, sentence] : table) {
        if (found.count(fault) == 0) {
            found[fault] = checkNetwork([which = fault](const std::string& caFile) {
                return std::make_shared<WrongNetwork>(which, caFile);
            });
        }
        EXPECT_TRUE(tells(found[fault], sentence)) << sentence << "\n"
                                                   << testing::PrintToString(found[fault]);
    }
}

} // namespace
} // namespace ombrivane::kit
