#include "Inspection.h"
#include "Pseudo.h"
#include "Walk.h"
#include "appearance/ThemedScope.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <vector>

namespace ombrivane::view {
namespace {

struct Look {
    const char* name;
    int width;
    int height;
    bool dark;
    double textScale;
    const char* language; ///< a tag, `longer` for texts that are accented and longer, or nothing for none
};

constexpr const char* longer = "longer";
constexpr Look phone{"phone", 390, 844, false, 1, nullptr};
constexpr Look looks[] = {
    phone,
    {"dark-narrow", 320, 640, true, 1, "ne"},
    {"narrow-large-text", 320, 568, false, 2, nullptr},
    {"narrow-longer", 320, 568, false, 2, longer},
    {"wide", 1024, 768, false, 1.3, "ar"},
};

constexpr const char* walks[] = {"abroad", "home", "trouble", "payment", "hostile", "several"};

/// The share of points that differ by more than what smoothing makes of them.
double difference(const QImage& one, const QImage& other) {
    constexpr int noticeable = 48;
    if (one.size() != other.size()) return 1;
    qint64 different = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y), b = other.pixel(x, y);
            const int distance = std::max({std::abs(qRed(a) - qRed(b)),
                                           std::abs(qGreen(a) - qGreen(b)),
                                           std::abs(qBlue(a) - qBlue(b))});
            if (distance > noticeable) ++different;
        }
    }
    return static_cast<double>(different) / (static_cast<double>(one.width()) * one.height());
}

/// Compares with the picture that is kept. The digits of a running clock may differ, no more.
void expectPicture(const QImage& shown, const QString& file) {
    constexpr double tolerance = 0.01;
    const double share = difference(shown.convertToFormat(QImage::Format_RGB32), QImage(file));
    EXPECT_LE(share, tolerance) << file.toStdString() << " looks different; scripts/pictures keeps new ones";
}

/// Where pictures are written to; nullptr where they are compared.
const char* pictureFolder() { return std::getenv("OMBRIVANE_PICTURES"); }

void writePicture(const QImage& shown, const QString& folder, const std::string& name) {
    const QString own = QStringLiteral("%1/%2").arg(pictureFolder(), folder);
    QDir().mkpath(own);
    shown.convertToFormat(QImage::Format_RGB32)
        .save(QStringLiteral("%1/%2.png").arg(own, QString::fromStdString(name)));
}

using Case = std::tuple<Look, const char*>;

class GalleryTest : public ::testing::TestWithParam<Case> {};

TEST_P(GalleryTest, EveryPageIsSoundAndLooksAsItDid) {
    const auto& [look, walkName] = GetParam();
    WalkPorts ports;
    Window window(look.width, look.height);
    window.setLook(look.dark, look.textScale);
    if (look.language == longer) {
        window.session().setTexts(accentedTexts());
    } else if (look.language != nullptr) {
        window.session().setLanguage(look.language);
    }
    int taken = 0;
    walk(ports,
         window,
         std::string("tests/view/gallery/") + walkName + ".script",
         [&](const std::string& name) {
             SCOPED_TRACE(std::string(look.name) + " " + name);
             window.settle();
             expectSound(window);
             const QImage picture = window.window().grabWindow();
             ++taken;
             if (pictureFolder() != nullptr) {
                 writePicture(picture, look.name, name);
             } else if (std::string_view(look.name) == phone.name) {
                 expectPicture(
                     picture, QStringLiteral("tests/view/pictures/%1.png").arg(QString::fromStdString(name)));
             }
         });
    EXPECT_GT(taken, 0);
}

std::string nameOf(const ::testing::TestParamInfo<Case>& test) {
    std::string name = std::string(std::get<0>(test.param).name) + "_" + std::get<1>(test.param);
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Looks, GalleryTest,
                         ::testing::Combine(::testing::ValuesIn(looks), ::testing::ValuesIn(walks)), nameOf);

/// A wallet for the night.
constexpr const char* nightWallet = R"(
import QtQuick
import Ombrivane
Window {
    visible: true
    OmbrivaneView {
        clientId: "wallet"; clientSecret: "wallet-secret"; dark: true
        anchors.fill: parent
        appearance: Appearance {
            dark { canvas: "#000000"; card: "#151515"; primary: "#FFB000"; secondary: "#7CC7FF"; range: "#10283A" }
            cornerRadius: 8
            logo: "qrc:/com.framework.Ombrivane/images/dark/ticket.svg"
            poweredBy: "Flights at night"
        }
        Component.onCompleted: open()
    }
})";

QByteArray contentsOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Side by side, with a little room between them.
QImage joined(const std::vector<QImage>& pictures) {
    constexpr int gap = 16;
    const QSize one = pictures.front().size();
    const int count = static_cast<int>(pictures.size());
    QImage whole(count * one.width() + (count - 1) * gap, one.height(), QImage::Format_RGB32);
    whole.fill(Qt::white);
    QPainter painter(&whole);
    for (int i = 0; i < count; ++i)
        painter.drawImage(i * (one.width() + gap), 0, pictures[static_cast<std::size_t>(i)]);
    return whole;
}

/// The two wallets of the examples and a third one, as the guide to embedding shows them.
TEST(BrandGalleryTest, EachWalletLooksLikeItself) {
    const QByteArray wallets[] = {
        contentsOf("examples/nepali.qml"), contentsOf("examples/arabic.qml"), nightWallet};
    std::map<std::string, std::vector<QImage>> pictures;
    for (const auto& wallet : wallets) {
        WalkPorts ports;
        Window window(wallet.constData());
        window.window().findChild<ThemedScope*>()->setMotionReduced(true);
        walk(ports, window, "tests/view/gallery/brand.script", [&](const std::string& name) {
            SCOPED_TRACE(name);
            window.settle();
            expectSound(window);
            pictures[name].push_back(window.window().grabWindow());
        });
    }
    for (const auto& [name, shown] : pictures) {
        ASSERT_EQ(shown.size(), std::size(wallets)) << name;
        if (pictureFolder() != nullptr) {
            writePicture(joined(shown), "brands", "brands-" + name);
        } else {
            expectPicture(joined(shown),
                          QStringLiteral("docs/pictures/brands-%1.png").arg(QString::fromStdString(name)));
        }
    }
    EXPECT_EQ(pictures.size(), 3U);
}

} // namespace
} // namespace ombrivane::view
