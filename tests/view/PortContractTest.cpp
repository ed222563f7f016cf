#include "ports/PortContract.h"

#include "Window.h"
#include "device/QtPlatform.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>

namespace ombrivane::view {
namespace {

TEST(PortContractTest, ThePortsBehindQtKeepToTheirHeaders) {
    const Platform before = platform();
    const Platform ports = qtPlatform();
    Platform::install(ports);
    const kit::RunUntil turn = [](const auto& done, auto limit) {
        const auto end = std::chrono::steady_clock::now() + limit;
        Window::waitFor([&] { return done() || std::chrono::steady_clock::now() >= end; });
    };
    EXPECT_EQ(kit::checkMainQueue(ports.mainQueue, turn), kit::Findings());
    EXPECT_EQ(kit::checkReachability(ports.reachability), kit::Findings());
    EXPECT_EQ(kit::checkClock(ports.clock), kit::Findings());
    EXPECT_EQ(kit::checkImageCodec(ports.images), kit::Findings());
    EXPECT_EQ(kit::checkLocalization(ports.localization), kit::Findings());

    const QTemporaryDir folder;
    const QString file = folder.filePath("picture.png");
    QImage picture(4, 3, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(file));
    const kit::PhotoCustomer customer{
        .picks =
            [&] {
                ports.photos->choose("file://" + file.toStdString(), {0, 0, 1, 1});
            },
        .cancels = [&] { ports.photos->cancel(); }};
    EXPECT_EQ(kit::checkPhotoLibrary(ports.photos, customer, turn), kit::Findings());
    Platform::install(before);
}

} // namespace
} // namespace ombrivane::view
