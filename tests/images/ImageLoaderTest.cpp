#include "images/ImageLoader.h"

#include "fakes/World.h"
#include "images/CustomAsyncImageView.h"
#include "platform/Limits.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <new>
#include <thread>

namespace ombrivane {
namespace {

constexpr const char* address = "https://logos.example/a.png";

class ImageLoaderTest : public testing::Test {
protected:
    std::shared_ptr<ImageLoader> loader(const std::string& url = address) const {
        return std::make_shared<ImageLoader>(url, cache);
    }

    /// Lets the decoding thread and the main queue finish.
    bool settle(const std::function<bool()>& done) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (!done() && std::chrono::steady_clock::now() < end) {
            world.queue->drain();
            std::this_thread::yield();
        }
        return done();
    }

    static std::string logo() {
        const auto points = std::make_shared<std::vector<std::uint8_t>>(2 * 3 * 4, std::uint8_t{200});
        return *platform().images->png({2, 3, points});
    }

    fakes::World world;
    std::shared_ptr<ImageCache> cache = ImageCacheKey::defaultValue();
};

TEST_F(ImageLoaderTest, FetchesAPictureOnceAndThenTakesItFromTheCache) {
    const auto first = loader();
    int told = 0;
    const auto count = first->image.observe([&] { ++told; });
    first->load();
    first->load();
    EXPECT_TRUE(first->isLoading.get());
    EXPECT_EQ(world.network->last().url, address);
    world.network->answer(logo());
    EXPECT_FALSE(first->image.get()) << "it changes on the main queue only";
    ASSERT_TRUE(settle([&] { return !first->isLoading.get(); }));
    EXPECT_EQ(told, 1) << "a second start during a load is dropped";
    EXPECT_EQ(first->image.read().dump(), R"({"width":2,"height":3})");

    const auto second = loader();
    bool wasLoading = false;
    const auto watch = second->isLoading.observe([&] { wasLoading = true; });
    second->load();
    EXPECT_EQ(second->image.get(), first->image.get());
    EXPECT_FALSE(wasLoading);
    EXPECT_EQ(world.network->sent().size(), 1U);
}

TEST_F(ImageLoaderTest, ManyLoadersOfOneAddressShareAFetchThatOutlivesThem) {
    auto gone = loader();
    const auto waiting = loader();
    const auto other = loader("https://logos.example/b.png");
    for (const auto& each : {gone, waiting, other})
        each->load();
    EXPECT_EQ(world.network->sent().size(), 2U);
    const std::weak_ptr<ImageLoader> weak = gone;
    gone.reset();
    EXPECT_TRUE(weak.expired()) << "a load keeps no loader alive";
    world.network->answer(logo());
    ASSERT_TRUE(settle([&] { return !waiting->isLoading.get(); }));
    EXPECT_TRUE(waiting->image.get());
    EXPECT_TRUE(other->isLoading.get());

    auto left = loader("https://logos.example/c.png");
    left->load();
    left.reset();
    world.network->answer(logo(), 1);
    EXPECT_TRUE(settle([&] { return cache->image("https://logos.example/c.png").has_value(); }));
}

TEST_F(ImageLoaderTest, AFewAreFetchedAtATimeAndWhatNobodyWaitsForIsDroppedFromTheQueue) {
    std::vector<std::shared_ptr<ImageLoader>> loaders;
    const auto urlOf = [](std::size_t index) { return "https://logos.example/" + std::to_string(index); };
    for (std::size_t i = 0; i < 40; ++i) {
        loaders.push_back(loader(urlOf(i)));
        loaders.back()->load();
    }
    const auto joined = loader(urlOf(20));
    joined->load();
    EXPECT_EQ(world.network->sent().size(), limits::pictureTransfers);

    // Scrolled past: the queue forgets them, but for the one that another row waits for too.
    loaders.erase(loaders.begin() + 6, loaders.begin() + 39);
    std::size_t answered = 0;
    while (world.network->outstanding() > 0) {
        EXPECT_LE(world.network->outstanding(), limits::pictureTransfers);
        world.network->answer(logo());
        const std::size_t next = std::min<std::size_t>(++answered + limits::pictureTransfers, 8);
        ASSERT_TRUE(settle([&] { return world.network->sent().size() == next; }));
    }
    EXPECT_EQ(world.network->sent()[6].url, urlOf(20));
    EXPECT_EQ(world.network->sent()[7].url, urlOf(39));
    ASSERT_TRUE(settle([&] { return joined->image.get() && loaders.back()->image.get(); }));

    loader(urlOf(10))->load();
    EXPECT_EQ(world.network->last().url, urlOf(10)) << "what was dropped can be asked for again";
}

TEST_F(ImageLoaderTest, AFailureLeavesNoPictureAndTheNextLoadTriesAgain) {
    const auto each = loader();
    const std::vector<HttpAnswer> failures = {{std::nullopt, Error{"Fake", 1, "offline"}},
                                              {"", std::nullopt},
                                              {"<svg/>", std::nullopt},
                                              {std::nullopt, std::nullopt}};
    for (const auto& failure : failures) {
        each->load();
        ASSERT_TRUE(each->isLoading.get());
        world.network->complete(failure);
        ASSERT_TRUE(settle([&] { return !each->isLoading.get(); }));
        EXPECT_FALSE(each->image.get());
        EXPECT_FALSE(cache->image(address));
    }
    EXPECT_EQ(world.network->sent().size(), failures.size());
}

/// Reads no picture.
class ThrowingCodec final : public ImageCodec {
public:
    std::optional<Image> decode(const std::string& /*bytes*/, const PictureLimits& /*limits*/) override {
        throw std::bad_alloc();
    }
    std::optional<std::string> jpeg(const Image& /*image*/, double /*quality*/) override {
        throw std::bad_alloc();
    }
    std::optional<std::string> png(const Image& /*image*/) override { throw std::bad_alloc(); }
    std::optional<std::string> pngOfJpeg(const std::string& /*jpeg*/,
                                         const PictureLimits& /*limits*/) override {
        throw std::bad_alloc();
    }
};

TEST_F(ImageLoaderTest, APictureForWhichThereIsNoMemoryIsNone) {
    Platform ports = platform();
    ports.images = std::make_shared<ThrowingCodec>();
    Platform::install(ports);
    const auto one = loader();
    one->load();
    world.network->answer("bytes");
    ASSERT_TRUE(settle([&] { return !one->isLoading.get(); }));
    EXPECT_FALSE(one->image.get());
}

TEST_F(ImageLoaderTest, FetchesOverTlsOnly) {
    for (const char* url : {"",
                            "dummyurl",
                            "file:///etc/passwd",
                            "http://x/a.png",
                            " https://x/a.png",
                            "https:/x",
                            "data:,a"}) {
        const auto each = loader(url);
        each->load();
        EXPECT_FALSE(each->isLoading.get()) << url;
    }
    EXPECT_TRUE(world.network->sent().empty());
    loader("HTTPS://x/a.png")->load();
    EXPECT_EQ(world.network->sent().size(), 1U);
}

TEST_F(ImageLoaderTest, AViewShowsItsPlaceholderUntilThePictureHasArrived) {
    const auto view = std::make_shared<CustomAsyncImageView>(address, "Loading ...");
    view->appear();
    EXPECT_EQ(readAll(view->fields).dump(),
              R"({"loader":{"image":null,"isLoading":true},"placeholder":"Loading ...","image":null})");
    EXPECT_THROW(view->loader.model()->find("image")->write(Json{{"width", 1}}), KeyedError);
    world.network->answer(logo());
    ASSERT_TRUE(settle([&] { return view->image.get().has_value(); }));
    EXPECT_EQ(view->placeholder.get(), "");
}

} // namespace
} // namespace ombrivane
