#include "images/PhotoPicker.h"

#include "fakes/World.h"
#include "keyed/Link.h"
#include "keyed/Navigator.h"
#include "platform/JpegPngCodec.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

class PictureForm final : public Screen {
public:
    PictureForm() : Screen("Form") {}
    Published<std::optional<DocumentPicture>> documentImage{fields, "documentImage"};
    Published<bool> isShowingPhotoPicker{fields, "isShowingPhotoPicker", false};
    Link picker{*this, Presentation::sheet, isShowingPhotoPicker, [this] {
                    return std::make_shared<PhotoPicker>(documentImage);
                }};
};

Image photo(std::uint8_t shade, int width = 4, int height = 2) {
    return {width,
            height,
            std::make_shared<std::vector<std::uint8_t>>(static_cast<std::size_t>(width * height * 4), shade)};
}

class PhotoPickerTest : public testing::Test {
protected:
    PhotoPickerTest() {
        navigator.start();
        open();
    }
    void open() { form->isShowingPhotoPicker = true; }
    bool isClosed() { return !form->isShowingPhotoPicker.get() && !world.photos->isOpen(); }

    fakes::World world;
    std::shared_ptr<PictureForm> form = std::make_shared<PictureForm>();
    Navigator navigator{form};
};

TEST_F(PhotoPickerTest, WritesThePickedPictureThroughJpegAndReplacesTheOneBefore) {
    ASSERT_TRUE(world.photos->isOpen());
    world.photos->pick({false, photo(200)});
    ASSERT_TRUE(isClosed());
    const DocumentPicture first = form->documentImage.get().value();
    EXPECT_EQ(first.width * 10 + first.height, 42);
    const auto shown = JpegPngCodec().decode(*first.jpeg, documentLimits());
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->width * 10 + shown->height, 42);
    EXPECT_EQ(shown->points->at(3), 255) << "a JPEG has no opacity";

    open();
    world.photos->pick({false, photo(255, 2, 2)});
    ASSERT_TRUE(isClosed());
    EXPECT_EQ(form->documentImage.get()->width, 2);
}

TEST_F(PhotoPickerTest, ClosesWithoutWritingWhenNoPictureWasPicked) {
    const DocumentPicture before{4, 2, std::make_shared<const std::string>("kept")};
    form->documentImage = before;
    for (const auto& picked : {PhotoLibrary::Picked{true, std::nullopt},
                               PhotoLibrary::Picked{false, std::nullopt},
                               PhotoLibrary::Picked{true, photo(1)}}) {
        open();
        world.photos->pick(picked);
        EXPECT_TRUE(isClosed());
        EXPECT_EQ(form->documentImage.get(), before);
    }
}

TEST_F(PhotoPickerTest, StaysOpenWhenThePictureCannotBeCompressed) {
    world.photos->pick({false, Image{70'000, 1, photo(1, 70'000, 1).points}});
    EXPECT_TRUE(form->isShowingPhotoPicker.get());
    EXPECT_TRUE(world.photos->isOpen());
    EXPECT_FALSE(form->documentImage.get());
    world.photos->pick({false, photo(1)});
    EXPECT_TRUE(isClosed());
    EXPECT_TRUE(form->documentImage.get());
}

TEST_F(PhotoPickerTest, ClosesTheLibraryWithTheScreen) {
    navigator.back();
    EXPECT_TRUE(isClosed());
}

} // namespace
} // namespace ombrivane
