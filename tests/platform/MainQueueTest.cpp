#include "platform/RunLoop.h"

#include "base/Fault.h"
#include "fakes/ManualMainQueue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace ombrivane {
namespace {

using namespace std::chrono_literals;

void settle(RunLoop& queue) { queue.advance(0ms); }
void settle(fakes::ManualMainQueue& queue) { queue.drain(); }

/// What every main queue promises. Times are minutes, so that the moments that a test itself takes on a
/// queue of real time decide nothing.
template <class Queue> class MainQueueTest : public testing::Test {
protected:
    MainQueue::Step log(const std::string& word) {
        return [this, word] { ran.push_back(word); };
    }
    std::vector<std::string> taken() { return std::exchange(ran, {}); }
    using Words = std::vector<std::string>;

    Queue queue;
    std::vector<std::string> ran;
};

using Queues = testing::Types<RunLoop, fakes::ManualMainQueue>;
TYPED_TEST_SUITE(MainQueueTest, Queues);

TYPED_TEST(MainQueueTest, RunsStepsLaterInTheirOrderAlsoThoseQueuedMeanwhile) {
    this->queue.async([this] {
        this->ran.push_back("one");
        this->queue.async(this->log("three"));
    });
    this->queue.async(this->log("two"));
    EXPECT_TRUE(this->ran.empty()) << "never inside of the call";
    settle(this->queue);
    EXPECT_EQ(this->taken(), (std::vector<std::string>{"one", "two", "three"}));
}

TYPED_TEST(MainQueueTest, TakesStepsFromEveryThreadAndKeepsTheOrderOfEach) {
    std::vector<std::thread> threads;
    for (int t = 0; t < 3; ++t) {
        threads.emplace_back([this, t] {
            for (int i = 0; i < 200; ++i)
                this->queue.async([this, t, i] { this->ran.push_back(std::to_string(t * 1000 + i)); });
        });
    }
    for (auto& thread : threads)
        thread.join();
    settle(this->queue);
    ASSERT_EQ(this->ran.size(), 600U);
    std::vector<int> next{0, 0, 0};
    for (const auto& word : this->ran) {
        const int value = std::stoi(word);
        EXPECT_EQ(value % 1000, next.at(static_cast<std::size_t>(value / 1000))++);
    }
}

TYPED_TEST(MainQueueTest, RunsDelayedWorkWhenItIsDueAndThenInTheOrderOfItsTime) {
    const auto late = this->queue.after(20min, this->log("20"));
    const auto soon = this->queue.after(5min, this->log("5"));
    const auto same = this->queue.after(20min, this->log("20 too"));
    this->queue.advance(4min);
    EXPECT_TRUE(this->ran.empty());
    this->queue.advance(2min);
    EXPECT_EQ(this->taken(), (std::vector<std::string>{"5"}));
    this->queue.advance(60min);
    EXPECT_EQ(this->taken(), (std::vector<std::string>{"20", "20 too"}));
    this->queue.advance(60min);
    EXPECT_TRUE(this->ran.empty()) << "once";
}

TYPED_TEST(MainQueueTest, GivesARepeatingTimerEveryTickThatItOwes) {
    const auto minute = this->queue.every(1min, this->log("tick"));
    const auto other = this->queue.after(90s, this->log("between"));
    this->queue.advance(150s);
    EXPECT_EQ(this->taken(), (std::vector<std::string>{"tick", "between", "tick"}));
    this->queue.advance(60min);
    EXPECT_EQ(this->taken().size(), 60U) << "the queue slept for an hour";
}

TYPED_TEST(MainQueueTest, WorkThatIsCancelledOrDroppedDoesNotRunAndLetsGoOfWhatItHolds) {
    const auto held = std::make_shared<int>();
    auto cancelled = this->queue.after(1min, [this, held] { this->ran.emplace_back("cancelled"); });
    auto ticking = this->queue.every(1min, [this, held] { this->ran.emplace_back("tick"); });
    {
        const auto dropped = this->queue.after(1min, [this, held] { this->ran.emplace_back("dropped"); });
    }
    EXPECT_EQ(held.use_count(), 3);
    cancelled.cancel();
    EXPECT_FALSE(cancelled.isPending());
    this->queue.advance(90s);
    EXPECT_EQ(this->taken(), (std::vector<std::string>{"tick"}));
    ticking = WorkItem();
    EXPECT_EQ(held.use_count(), 1);
    this->queue.advance(10min);
    EXPECT_TRUE(this->ran.empty());
}

TYPED_TEST(MainQueueTest, WorkMayCancelItselfAndWhatIsDueAtTheSameTime) {
    WorkItem self;
    WorkItem victim;
    self = this->queue.every(1min, [&, word = std::string("a text too long to be stored in place")] {
        self.cancel();
        victim.cancel();
        this->ran.push_back(word.substr(0, 6));
    });
    victim = this->queue.after(1min, this->log("victim"));
    this->queue.advance(10min);
    EXPECT_EQ(this->taken(), (std::vector<std::string>{"a text"}));
}

TYPED_TEST(MainQueueTest, CountsTheDelayOfAStepsWorkFromWhenTheStepRan) {
    WorkItem fromStep;
    WorkItem fromTimer;
    this->queue.async([&] { fromStep = this->queue.after(2min, this->log("2")); });
    const auto first = this->queue.after(3min, [&] {
        this->ran.emplace_back("3");
        this->queue.async([&] { fromTimer = this->queue.after(2min, this->log("3 + 2")); });
    });
    const auto last = this->queue.after(7min, this->log("7"));
    this->queue.advance(8min);
    EXPECT_EQ(this->taken(), (std::vector<std::string>{"2", "3", "3 + 2", "7"}));
}

TYPED_TEST(MainQueueTest, GoesOnAfterAFault) {
    int faults = 0;
    const auto before = setFaultHandler([&](const std::string&) { ++faults; });
    this->queue.async([] { fatalFault("a step"); });
    const auto ticking = this->queue.every(1min, [] { fatalFault("a tick"); });
    this->queue.async(this->log("next"));
    this->queue.advance(150s);
    setFaultHandler(before);
    EXPECT_EQ(faults, 3);
    EXPECT_EQ(this->taken(), (std::vector<std::string>{"next"}));
}

TEST(RunLoop, WaitsForWhatAnotherThreadQueuesAndNoLongerThanAllowed) {
    RunLoop loop;
    auto start = std::chrono::steady_clock::now();
    bool arrived = false;
    std::thread network([&] {
        std::this_thread::sleep_for(20ms);
        loop.async([&] { arrived = true; });
    });
    EXPECT_TRUE(loop.runUntil([&] { return arrived; }, 10s));
    network.join();
    EXPECT_LT(std::chrono::steady_clock::now() - start, 5s) << "it wakes when something arrives";

    start = std::chrono::steady_clock::now();
    EXPECT_FALSE(loop.runUntil([] { return false; }, 30ms));
    EXPECT_GE(std::chrono::steady_clock::now() - start, 30ms);
}

TEST(RunLoop, WakesForATimerOfRealTimeAndPaysTheTicksOfATimeWithoutTurns) {
    RunLoop loop;
    int ticks = 0;
    const auto ticking = loop.every(2ms, [&] { ++ticks; });
    EXPECT_TRUE(loop.runUntil([&] { return ticks == 3; }, 10s));
    std::this_thread::sleep_for(40ms);
    bool turned = false;
    loop.async([&] { turned = true; });
    EXPECT_TRUE(loop.runUntil([&] { return turned && ticks >= 23; }, 0ms)) << ticks;
}

/// How long the device of the tests below has slept.
std::atomic<std::chrono::milliseconds> slept;

TEST(RunLoop, AfterASleepOfTheDeviceItSoonGivesWhatFellDueMeanwhile) {
    slept = 0min;
    RunLoop loop([] { return elapsedTime() + slept.load(); });
    int ticks = 0;
    bool ended = false;
    const auto ticking = loop.every(1min, [&] { ++ticks; });
    const auto end = loop.after(10min, [&] { ended = true; });
    // While the loop waits for its first timer. A wait itself stands still during a sleep and goes on after
    // it.
    std::thread device([] {
        std::this_thread::sleep_for(100ms);
        slept = 11min;
    });
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(loop.runUntil([&] { return ended && ticks == 11; }, 20s)) << ticks;
    EXPECT_LT(std::chrono::steady_clock::now() - start, 5s);
    device.join();
}

TEST(TimerSchedule, ARepeatedPieceOfWorkIsDueFromWhenItWasDueNotFromWhenItRan) {
    using Time = TimerSchedule::Time;
    TimerSchedule schedule;
    std::string ran;
    const auto slow = schedule.add(Time(100), MainQueue::Duration(100), [&] { ran += 's'; });
    auto once = schedule.add(Time(200), std::nullopt, [&] { ran += 'o'; });
    EXPECT_FALSE(schedule.runOneDue(Time(99)));
    while (schedule.runOneDue(Time(350))) {
    }
    EXPECT_EQ(ran, "soss") << "what was added first goes first, what is due again goes behind";
    EXPECT_EQ(schedule.nextDue(), Time(400));

    once = schedule.add(Time(50), std::nullopt, [&] { ran += 'x'; });
    EXPECT_EQ(schedule.nextDue(), Time(50));
    once.cancel();
    EXPECT_EQ(schedule.nextDue(), Time(400));
}

} // namespace
} // namespace ombrivane
