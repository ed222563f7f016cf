#include "Inspection.h"
#include "Pseudo.h"
#include "Walk.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>

#include <algorithm>
#include <cstdlib>

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

constexpr const char* walks[] = {"abroad", "home", "trouble", "payment", "hostile"};

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
void expectPicture(const QImage& shown, const QString& name) {
    constexpr double tolerance = 0.01;
    const QImage kept(QStringLiteral("tests/view/pictures/%1.png").arg(name));
    const double share = difference(shown.convertToFormat(QImage::Format_RGB32), kept);
    EXPECT_LE(share, tolerance) << name.toStdString() << " looks different; scripts/pictures keeps new ones";
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
    const char* folder = std::getenv("OMBRIVANE_PICTURES");
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
             if (folder != nullptr) {
                 const QString own = QStringLiteral("%1/%2").arg(folder, look.name);
                 QDir().mkpath(own);
                 picture.convertToFormat(QImage::Format_RGB32)
                     .save(QStringLiteral("%1/%2.png").arg(own, QString::fromStdString(name)));
             } else if (std::string_view(look.name) == phone.name) {
                 expectPicture(picture, QString::fromStdString(name));
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

} // namespace
} // namespace ombrivane::view
