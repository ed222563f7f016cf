#include "platform/SerialQueue.h"

#include "base/Fault.h"

#include <gtest/gtest.h>

#include <future>
#include <new>
#include <vector>

namespace ombrivane {
namespace {

TEST(SerialQueue, RunsStepsOfSeveralThreadsOneAtATimeOnAThreadOfItsOwn) {
    int count = 0; // unguarded on purpose: the queue is what keeps steps apart
    std::promise<std::thread::id> ran;
    {
        SerialQueue queue("steps");
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([&] {
                for (int i = 0; i < 500; ++i)
                    queue.async([&] { ++count; });
            });
        }
        for (auto& thread : threads)
            thread.join();
        queue.async([&] { ran.set_value(std::this_thread::get_id()); });
        EXPECT_NE(ran.get_future().get(), std::this_thread::get_id());
    }
    EXPECT_EQ(count, 2000);
}

TEST(SerialQueue, GoesOnAfterAStepThatThrew) {
    std::promise<void> ran;
    SerialQueue queue("throwing");
    queue.async([] { throw std::bad_alloc(); });
    queue.async([] { throw 7; });
    queue.async([&ran] { ran.set_value(); });
    ran.get_future().get();
}

TEST(SerialQueue, FinishesTheRunningStepAndDropsTheOthersWhenItEnds) {
    const auto held = std::make_shared<int>();
    std::promise<void> started;
    std::promise<void> mayEnd;
    bool finished = false;
    bool ranAnother = false;
    std::thread releaser;
    {
        SerialQueue queue("ending");
        queue.async([&] {
            started.set_value();
            mayEnd.get_future().wait();
            finished = true;
        });
        queue.async([&ranAnother, held] { ranAnother = true; });
        started.get_future().wait();
        releaser = std::thread([&] {
            while (held.use_count() > 1)
                std::this_thread::yield();
            mayEnd.set_value();
        });
    }
    releaser.join();
    EXPECT_TRUE(finished);
    EXPECT_FALSE(ranAnother);
}

TEST(SerialQueue, GoesOnAfterAFaultAndMayEndFromItsOwnStep) {
    const auto before = setFaultHandler([](const std::string&) {});
    std::promise<void> ended;
    auto queue = std::make_shared<SerialQueue>("faults");
    queue->async([] { fatalFault("on purpose"); });
    queue->async([&ended, holding = queue]() mutable {
        while (holding.use_count() > 1)
            std::this_thread::yield();
        holding.reset();
        ended.set_value();
    });
    queue.reset();
    ended.get_future().wait();
    setFaultHandler(before);
}

} // namespace
} // namespace ombrivane
