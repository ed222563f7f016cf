#include "images/TemporaryImageCache.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace ombrivane {
namespace {

Image imageOf(int bytes) {
    return {1, 1, std::make_shared<std::vector<std::uint8_t>>(static_cast<std::size_t>(bytes))};
}

std::string url(int number) { return "https://logos.example/" + std::to_string(number); }

TEST(TemporaryImageCache, DropsThePictureThatWasNotUsedForLongest) {
    TemporaryImageCache cache;
    for (int i = 0; i < 100; ++i)
        cache.setImage(url(i), imageOf(4));
    EXPECT_TRUE(cache.image(url(0))) << "a hundred fit";
    cache.setImage(url(100), imageOf(4));
    EXPECT_TRUE(cache.image(url(0))) << "it was read a moment ago";
    EXPECT_FALSE(cache.image(url(1)));
    EXPECT_TRUE(cache.image(url(2)));
}

TEST(TemporaryImageCache, KeepsWithinItsBytes) {
    TemporaryImageCache cache;
    constexpr int half = 52'428'800;
    cache.setImage(url(1), imageOf(half));
    cache.setImage(url(2), imageOf(half));
    EXPECT_TRUE(cache.image(url(1)));
    cache.setImage(url(3), imageOf(1));
    EXPECT_FALSE(cache.image(url(2)));
    cache.setImage(url(1), imageOf(4));
    cache.setImage(url(4), imageOf(half));
    EXPECT_TRUE(cache.image(url(1)) && cache.image(url(3)) && cache.image(url(4)))
        << "a replaced picture costs nothing";
}

TEST(TemporaryImageCache, ReplacesAndRemoves) {
    TemporaryImageCache cache;
    const Image second = imageOf(8);
    cache.setImage(url(1), imageOf(4));
    cache.setImage(url(1), second);
    EXPECT_EQ(cache.image(url(1)), second);
    cache.setImage(url(1), std::nullopt);
    EXPECT_FALSE(cache.image(url(1)));
}

} // namespace
} // namespace ombrivane
