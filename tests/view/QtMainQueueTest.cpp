#include "device/QtMainQueue.h"

#include <QTest>

#include <gtest/gtest.h>

namespace ombrivane::view {
namespace {

using namespace std::chrono_literals;

/// How long the device has slept.
std::chrono::milliseconds slept{0};

TEST(QtMainQueueTest, afterASleepOfTheDeviceItSoonGivesWhatFellDueMeanwhile) {
    QtMainQueue queue([] { return elapsedTime() + slept; });
    int ticks = 0;
    bool ended = false;
    const auto ticking = queue.every(1min, [&] { ++ticks; });
    const auto end = queue.after(10min, [&] { ended = true; });
    // Qt's timer is set by now: it stands still during a sleep and goes on after it.
    slept = 11min;
    EXPECT_TRUE(QTest::qWaitFor([&] { return ended && ticks == 11; }, 5000)) << ticks;
}

} // namespace
} // namespace ombrivane::view
