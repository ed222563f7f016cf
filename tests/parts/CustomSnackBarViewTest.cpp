#include "parts/CustomSnackBarView.h"

#include "fakes/World.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

using namespace std::chrono_literals;

class CustomSnackBarViewTest : public testing::Test {
protected:
    fakes::World world;
    Fields fields;
    Published<bool> show{fields, "show"};
    std::unique_ptr<CustomSnackBarView> bar = std::make_unique<CustomSnackBarView>(show);
};

TEST_F(CustomSnackBarViewTest, StaysForItsThreeSecondsFromWhenItAppearedEachTime) {
    for (int round = 0; round < 2; ++round) {
        show = true;
        world.pass(2000ms);
        show = true; // it is on screen already
        world.pass(999ms);
        EXPECT_TRUE(show.get()) << round;
        world.pass(1ms);
        EXPECT_FALSE(show.get()) << round;
        world.pass(1000ms);
    }
}

TEST_F(CustomSnackBarViewTest, LeavesNoWorkBehindWhenItsOwnerClearsItOrDropsIt) {
    show = true;
    world.pass(1000ms);
    show = false;
    EXPECT_FALSE(world.queue->hasTimers());

    show = true;
    world.pass(2500ms);
    EXPECT_TRUE(show.get()) << "the time of the bar before does not count";
    bar.reset();
    EXPECT_FALSE(world.queue->hasTimers());
    world.pass(5000ms);
    EXPECT_TRUE(show.get());
}

} // namespace
} // namespace ombrivane
