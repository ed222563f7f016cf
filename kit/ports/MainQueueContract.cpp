#include "base/Fault.h"
#include "ports/PortContract.h"

#include <algorithm>
#include <mutex>
#include <thread>
#include <utility>

namespace ombrivane::kit {
namespace {

using std::chrono::milliseconds;

/// As long as a step of a device that is busy with other things may take to come.
constexpr milliseconds patience{3000};
/// How long it is waited for what must not come.
constexpr milliseconds silence{150};

/// One queue under examination.
struct QueueCheck {
    std::shared_ptr<MainQueue> queue;
    const RunUntil& runUntil;
    Findings findings = {};

    void expect(bool holds, const char* sentence) {
        if (!holds) findings.emplace_back(sentence);
    }
    void settle() const {
        runUntil([] { return false; }, silence);
    }

    void steps();
    void stepsOfOtherThreads();
    void delays();
    void ticks();
    void faults();
};

/// What steps tell. They hold it: a queue may run one long after it should have.
struct Seen {
    std::thread::id main = std::this_thread::get_id();
    std::mutex mutex;
    std::string ran;
    std::chrono::steady_clock::duration came{};
    bool isInside = true;
    bool cameInside = false;
    bool cameElsewhere = false;

    void run(char name) {
        const std::lock_guard lock(mutex);
        cameInside = cameInside || isInside;
        cameElsewhere = cameElsewhere || std::this_thread::get_id() != main;
        ran += name;
    }
    void returned() {
        const std::lock_guard lock(mutex);
        isInside = false;
    }
    std::size_t count() {
        const std::lock_guard lock(mutex);
        return ran.size();
    }
    std::string order() {
        const std::lock_guard lock(mutex);
        return ran;
    }
};

void QueueCheck::steps() {
    const auto seen = std::make_shared<Seen>();
    for (const char name : {'a', 'b', 'c'})
        queue->async([seen, name] { seen->run(name); });
    seen->returned();
    runUntil([&] { return seen->count() >= 3; }, patience);
    settle();
    expect(!seen->cameInside, "async: a step runs inside of the call that queued it");
    expect(!seen->cameElsewhere, "async: a step runs on another thread than the main one");
    expect(seen->count() >= 3, "async: a step is not run");
    expect(seen->count() <= 3, "async: a step is run more than once");
    expect(seen->count() != 3 || seen->order() == "abc",
           "async: steps do not run in the order in which they were queued");

    const auto nested = std::make_shared<Seen>();
    queue->async([weak = std::weak_ptr(queue), nested] {
        if (const auto held = weak.lock()) held->async([nested] { nested->run('b'); });
        nested->run('a');
    });
    runUntil([&] { return nested->count() >= 2; }, patience);
    expect(nested->order() == "ab", "async: a step that is queued by a step does not run after it");
}

void QueueCheck::stepsOfOtherThreads() {
    const auto seen = std::make_shared<Seen>();
    std::thread([&] {
        for (int i = 0; i < 50; ++i)
            queue->async([seen, i] { seen->run(static_cast<char>('0' + i)); });
    }).join();
    runUntil([&] { return seen->count() >= 50; }, patience);
    const std::string order = seen->order();
    expect(!seen->cameElsewhere, "async: a step of another thread runs there, and not on the main one");
    expect(order.size() == 50, "async: of fifty steps that another thread queued, not all were run once");
    expect(std::is_sorted(order.begin(), order.end()),
           "async: steps of another thread do not run in their order");
}

void QueueCheck::delays() {
    const auto begun = std::chrono::steady_clock::now();
    const auto seen = std::make_shared<Seen>();
    const WorkItem item = queue->after(milliseconds(120), [seen, begun] {
        seen->came = std::chrono::steady_clock::now() - begun;
        seen->run('a');
    });
    seen->returned();
    runUntil([&] { return seen->count() > 0; }, patience);
    settle();
    expect(!seen->cameInside, "after: a step runs inside of the call that planned it");
    expect(seen->count() > 0, "after: a step does not run when its time has come");
    expect(seen->count() <= 1, "after: a step is run more than once");
    expect(seen->count() == 0 || seen->came >= milliseconds(110), "after: a step runs before its time");

    const auto dropped = std::make_shared<Seen>();
    {
        const WorkItem gone = queue->after(milliseconds(30), [dropped] { dropped->run('a'); });
        WorkItem cancelled = queue->after(milliseconds(30), [dropped] { dropped->run('b'); });
        cancelled.cancel();
    }
    expect(dropped.use_count() == 1,
           "after: what a step holds is not let go when its item is dropped or cancelled");
    settle();
    expect(dropped->count() == 0, "after: a step runs although its item was dropped or cancelled");
}

void QueueCheck::ticks() {
    const auto seen = std::make_shared<Seen>();
    const auto item = std::make_shared<WorkItem>();
    *item = queue->every(milliseconds(40), [seen, item] {
        seen->run('a');
        if (seen->count() == 8) *item = {};
    });
    seen->returned();
    // The device is busy, or sleeps: what is owed is delivered when it wakes.
    std::this_thread::sleep_for(milliseconds(210));
    runUntil([&] { return seen->count() >= 5; }, milliseconds(30));
    expect(!seen->cameInside, "every: a step runs inside of the call that planned it");
    expect(seen->count() >= 5,
           "every: ticks that fell due while the queue stood still are not all delivered");
    runUntil([&] { return seen->count() >= 8; }, patience);
    expect(seen->count() >= 8, "every: a step does not go on");
    settle();
    expect(seen->count() <= 8, "every: a step goes on although its item was dropped, from inside of it");
    *item = {};
}

void QueueCheck::faults() {
    const FaultHandler before = setFaultHandler([](const std::string&) {});
    const auto seen = std::make_shared<Seen>();
    bool left = false;
    try {
        queue->async([] { fatalFault("on purpose, for the main queue's contract"); });
        queue->async([seen] { seen->run('a'); });
        runUntil([&] { return seen->count() > 0; }, patience);
    } catch (const Fault&) {
        left = true;
    }
    setFaultHandler(before);
    expect(!left, "async: a step that is left by a fault ends the loop");
    expect(left || seen->count() > 0, "async: after a step that is left by a fault the queue does not go on");
}

} // namespace

Findings checkMainQueue(const std::shared_ptr<MainQueue>& queue, const RunUntil& runUntil) {
    if (!queue) return {"There is no main queue."};
    QueueCheck check{queue, runUntil};
    check.steps();
    check.stepsOfOtherThreads();
    check.delays();
    check.ticks();
    check.faults();
    return std::move(check.findings);
}

} // namespace ombrivane::kit
