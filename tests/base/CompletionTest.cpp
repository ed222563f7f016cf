#include "base/Completion.h"

#include "fakes/World.h"

#include <gtest/gtest.h>

#include <atomic>
#include <new>
#include <string>
#include <thread>
#include <vector>

namespace ombrivane {
namespace {

using Answer = Completion<std::optional<int>>;

class CompletionTest : public testing::Test {
protected:
    Answer::Handler recording() {
        return [this](std::optional<int> result, std::optional<Error> error) {
            heard.push_back((result ? std::to_string(*result) : "-") + " " + (error ? error->domain : "-"));
        };
    }
    fakes::World world;
    std::vector<std::string> heard;
};

TEST_F(CompletionTest, ASecondCallIsAFaultAndIsNotHeard) {
    const Answer answer{recording()};
    answer(1);
    EXPECT_THROW(answer.fail({"Late", 1, ""}), Fault);
    EXPECT_EQ(heard, (std::vector<std::string>{"1 -"}));
    EXPECT_NE(world.takeFaults().at(0).find("Completion.h"), std::string::npos);
}

TEST_F(CompletionTest, TheLastCopyDroppedWithoutACallAnswersByItself) {
    {
        const Answer answer{recording()};
        const Answer copy = answer; // NOLINT(performance-unnecessary-copy-initialization)
    }
    EXPECT_EQ(heard, (std::vector<std::string>{"- Ombrivane"}));
    {
        const Answer answer{recording()};
        answer.fail({"Network", 2, ""});
    }
    EXPECT_EQ(heard.size(), 2U) << "an answer that was given is the only one";
}

TEST_F(CompletionTest, OneThatMayAnswerTwiceDoesSoAndNoMore) {
    {
        const Answer answer = Answer::twice(recording());
        answer(1);
        answer(2);
        EXPECT_THROW(answer(3), Fault);
    }
    {
        const Answer once = Answer::twice(recording());
        once(4);
    }
    EXPECT_EQ(heard, (std::vector<std::string>{"1 -", "2 -", "4 -"}));
    world.takeFaults();
}

TEST_F(CompletionTest, LetsGoOfWhatItHoldsWithItsLastCall) {
    const auto screen = std::make_shared<int>();
    const Answer answer{[screen](std::optional<int>, const std::optional<Error>&) {}};
    EXPECT_EQ(screen.use_count(), 2);
    answer(1);
    EXPECT_EQ(screen.use_count(), 1);
}

TEST_F(CompletionTest, AHandlerThatThrowsHearsOfItAndNothingEscapes) {
    for (const bool throwsAgain : {false, true}) {
        heard.clear();
        const Answer answer{[&](std::optional<int> result, const std::optional<Error>& error) {
            recording()(result, error);
            if (result || throwsAgain) throw std::bad_alloc();
        }};
        EXPECT_NO_THROW(answer(1));
        EXPECT_EQ(heard, (std::vector<std::string>{"1 -", "- Ombrivane"}));
    }
    EXPECT_NO_THROW((Answer{[](std::optional<int>, const std::optional<Error>&) { throw 7; }}));
}

TEST_F(CompletionTest, AFaultOfTheHandlerDoesNotEscapeFromTheDrop) {
    {
        const Answer answer{[](std::optional<int>, const std::optional<Error>&) { fatalFault("inner"); }};
    }
    EXPECT_EQ(world.takeFaults().size(), 1U);
}

TEST_F(CompletionTest, OfManyThreadsOneAnswers) {
    std::atomic<int> calls = 0;
    std::atomic<int> refused = 0;
    setFaultHandler([&](const std::string&) { ++refused; });
    {
        const Answer answer{[&](std::optional<int>, const std::optional<Error>&) { ++calls; }};
        std::vector<std::thread> threads;
        for (int i = 0; i < 8; ++i)
            threads.emplace_back([&answer] { guarded([&] { answer(1); }); });
        for (auto& thread : threads)
            thread.join();
    }
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(refused, 7);
}

TEST(FaultDeathTest, WithoutAHandlerAFaultNamesItsPlaceAndEndsTheProcess) {
    EXPECT_DEATH(
        {
            setFaultHandler(nullptr);
            guarded([] { fatalFault("a broken promise"); });
        },
        "CompletionTest.cpp:[0-9]+: a broken promise");
}

} // namespace
} // namespace ombrivane
