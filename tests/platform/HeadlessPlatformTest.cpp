#include "platform/HeadlessPlatform.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

TEST(HeadlessPlatform, ItsPickerIsCancelledInAStepOfItsOwnUnlessItWasClosed) {
    const auto loop = std::make_shared<RunLoop>();
    Platform::install(headlessPlatform(loop));
    int cancelled = 0;
    const auto count = [&cancelled](const PhotoLibrary::Picked& picked) {
        if (picked.cancelled && !picked.editedImage) ++cancelled;
    };
    const auto turn = [&] { loop->runUntil([] { return false; }, std::chrono::milliseconds(5)); };

    platform().photos->present(count);
    EXPECT_EQ(cancelled, 0) << "inside of the call that opened it";
    turn();
    EXPECT_EQ(cancelled, 1);

    platform().photos->present(count);
    platform().photos->dismiss();
    turn();
    EXPECT_EQ(cancelled, 1) << "after it was closed";
    Platform::install({});
}

} // namespace
} // namespace ombrivane
