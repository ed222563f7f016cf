#include "appearance/Theme.h"
#include "Walk.h"
#include "appearance/Contrast.h"
#include "appearance/ReadableColours.h"
#include "appearance/ThemedScope.h"
#include "keyed/Navigator.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPalette>
#include <QQmlComponent>
#include <QQmlProperty>
#include <QRawFont>

#include <algorithm>
#include <map>

namespace ombrivane::view {
namespace {

Shade shadeOf(const char* name) {
    const QColor colour(name);
    return {colour.redF(), colour.greenF(), colour.blueF()};
}

TEST(ThemeTest, EachFaceHasTheLettersOfLatinNamesAndTheSignsOfTexts) {
    QString wanted;
    for (char16_t letter = u' '; letter < 0x180; ++letter)
        if (letter < 0x7f || QChar(letter).isLetter()) wanted += QChar(letter);
    for (char16_t letter = 0x1ea0; letter <= 0x1ef9; ++letter) // of Vietnamese names
        wanted += QChar(letter);
    wanted += u"ǎǐǒǔǖșțȘȚǍẞẀẁẂẃẄẅỲỳ\u0300\u0301\u0302\u0303\u0308\u030a\u030c\u0327\u0328";
    wanted += u"₹€£¥¢₽₩₪₫฿₺«»‹›“”„‘’‚–—…";
    wanted += u"•·°×−±§©®™№½¼¾←→↑↓≤≥≠≈¡¿";
    for (const char* name : {"Light", "Regular", "Medium", "SemiBold"}) {
        QFile file(QString(":/com.framework.Ombrivane/fonts/FiraSans-%1.ttf").arg(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QRawFont face(file.readAll(), 15);
        EXPECT_EQ(face.familyName(), "Fira Sans");
        QString missing;
        for (const QChar letter : wanted)
            if (!face.supportsCharacter(letter)) missing += letter;
        EXPECT_EQ(missing.toStdString(), "") << name;
    }
}

TEST(ThemeTest, ContrastIsComputedAndRepairedByLightness) {
    EXPECT_NEAR(contrast(shadeOf("#000000"), shadeOf("#FFFFFF")), 21, 0.001);
    EXPECT_NEAR(contrast(shadeOf("#777777"), shadeOf("#FFFFFF")), 4.48, 0.005);
    EXPECT_NEAR(contrast(shadeOf("#FF0000"), shadeOf("#0000FF")), 2.15, 0.005);

    struct Case {
        const char* front;
        std::vector<const char*> grounds;
        double wanted;
        const char* drawn; ///< as near as a screen shows
    };
    const Case cases[] = {
        {"#C8372D", {"#FFFFFF", "#F3F5F9"}, 4.5, "#C8372D"}, // holds as it is
        {"#777777", {"#FFFFFF"}, 4.5, "#767676"},            // the one that is known to hold
        {"#FFCC00", {"#FFFFFF"}, 4.5, "#907300"},            // darker on light
        {"#1A2B6D", {"#101010"}, 4.5, "#5B75D8"},            // lighter on dark
        {"#808080", {"#000000", "#FFFFFF"}, 4.5, "#767676"}, // between two grounds
        {"#000000", {"#000000"}, 4.5, "#757575"},            // without a hue
    };
    for (const auto& [front, grounds, wanted, drawn] : cases) {
        std::vector<Shade> shades;
        std::transform(grounds.begin(), grounds.end(), std::back_inserter(shades), shadeOf);
        const Shade shade = nearestShade(shadeOf(front), shades, wanted);
        EXPECT_EQ(QColor::fromRgbF(static_cast<float>(shade.red),
                                   static_cast<float>(shade.green),
                                   static_cast<float>(shade.blue)),
                  QColor(drawn))
            << front;
        EXPECT_GE(leastContrast(shade, shades), wanted) << front;
    }
}

TEST(ThemeTest, WhatIsDrawnCanBeRead) {
    struct Pair {
        const char* front;
        const char* ground;
        double least;
    };
    const Pair pairs[] = {
        {"blackColor", "whiteColor", 4.5},
        {"blackColor", "canvasColor", 4.5},
        {"blackColor", "segmentColor", 4.5},
        {"blackColor", "calenderRangeColor", 4.5},
        {"blackColor", "filterBackgroundColor", 4.5},
        {"placeHolderColor", "whiteColor", 4.5},
        {"placeHolderColor", "canvasColor", 4.5},
        {"placeHolderColor", "segmentColor", 4.5},
        {"primaryColor", "whiteColor", 4.5},
        {"primaryColor", "canvasColor", 4.5},
        {"secondaryColor", "whiteColor", 4.5},
        {"secondaryColor", "canvasColor", 4.5},
        {"primaryTextColor", "primaryColor", 4.5},
        {"secondaryTextColor", "secondaryColor", 4.5},
        {"noticeColor", "noticeFillColor", 4.5},
        {"blackColor", "noticeFillColor", 4.5},
        {"formBorderColor", "whiteColor", 3},
        {"canvasFormBorderColor", "canvasColor", 3},
    };
    // The component's own colours are drawn as they are; of the others some cannot be read as given.
    Appearance faint;
    faint.light = {.canvas = "#FFE9A8",
                   .ink = "#C0C0C0",
                   .quiet = "#DDDDDD",
                   .fieldBorder = "#FFFFFF",
                   .primary = "#FFD400",
                   .secondary = "#9BE8D8",
                   .notice = "#FFFF00"};
    faint.dark = {.card = "#4A4A4A", .primaryText = "#FF8A7A"};
    for (const bool dark : {false, true})
        EXPECT_EQ(readable({}, dark).complaints, QStringList());
    for (const auto& appearance : {Appearance(), faint}) {
        for (const bool dark : {false, true}) {
            QQmlEngine engine;
            Theme theme(engine);
            theme.setAppearance(appearance);
            theme.setLook({.dark = dark});
            for (const auto& [front, ground, least] : pairs) {
                const auto shade = [&theme](const char* name) {
                    return shadeOf(theme.property(name).value<QColor>().name().toLatin1());
                };
                EXPECT_GE(contrast(shade(front), shade(ground)), least)
                    << front << " on " << ground << (dark ? " dark" : "");
            }
        }
    }
}

/// Two views of one engine beside each other, each of its own look.
constexpr const char* twoBrands = R"(
import QtQuick
import Ombrivane
Window {
    id: wallet
    property color brand: "#8E1B4E"
    property bool hasDark: true
    visible: true
    OmbrivaneView {
        objectName: "light"
        width: 390; height: parent.height
        clientId: "wallet"; clientSecret: "wallet-secret"; reducedMotion: true
        appearance: Appearance {
            light { canvas: "#FFF8E7"; secondary: wallet.brand }
            cornerRadius: 3; poweredBy: ""
        }
    }
    Loader {
        active: wallet.hasDark
        x: 390; width: 390; height: parent.height
        sourceComponent: OmbrivaneView {
            objectName: "dark"
            clientId: "wallet"; clientSecret: "wallet-secret"; reducedMotion: true
            dark: true; textScale: 1.5
        }
    }
})";

/// The theme that each object below `object` was given.
void collectThemes(const QObject* object, std::map<const Theme*, int>& themes) {
    for (const QObject* child : object->children()) {
        const auto* given = qmlAttachedPropertiesObject<Theme>(child, false);
        if (given != nullptr) ++themes[qobject_cast<const Theme*>(given)];
        collectThemes(child, themes);
    }
    const auto* item = qobject_cast<const QQuickItem*>(object);
    if (item == nullptr) return;
    for (const QQuickItem* child : item->childItems()) {
        if (child->parent() != item) collectThemes(child, themes);
    }
}

class HeardDiagnostics final : public Diagnostics {
public:
    void print(std::string_view line) override { lines.emplace_back(line); }
    std::vector<std::string> lines;
};

/// The sky is a breath of the wallet's colour on its canvas.
void expectSky(const QColor& sky, const char* colour, const char* canvas) {
    constexpr double share = 0.12;
    const QColor tint(colour), ground(canvas);
    const auto mixed = [](int front, int back) { return back + share * (front - back); };
    EXPECT_NEAR(sky.red(), mixed(tint.red(), ground.red()), 3);
    EXPECT_NEAR(sky.green(), mixed(tint.green(), ground.green()), 3);
    EXPECT_NEAR(sky.blue(), mixed(tint.blue(), ground.blue()), 3);
}

TEST(ThemeTest, EachOfTwoViewsDrawsItsOwnAndFollowsItsTable) {
    WalkPorts ports;
    const auto diagnostics = std::make_shared<HeardDiagnostics>();
    Platform heard = platform();
    heard.diagnostics = diagnostics;
    Platform::install(std::move(heard));
    Window window(twoBrands, 780, 844);
    const auto view = [&](const QString& name) { return window.window().findChild<QQuickItem*>(name); };
    for (const char* name : {"light", "dark"}) {
        auto* session = view(name)->findChild<OmbrivaneSession*>();
        session->open();
        ASSERT_TRUE(Window::waitFor([&] {
            return session->navigator() != nullptr && session->navigator()->find("MainView") != nullptr;
        }));
    }
    window.settle();
    const QImage shown = window.window().grabWindow();
    EXPECT_EQ(shown.pixelColor(4, 840), QColor("#FFF8E7"));
    EXPECT_EQ(shown.pixelColor(394, 840), QColor("#0E1116"));
    expectSky(shown.pixelColor(4, 4), "#8E1B4E", "#FFF8E7");
    expectSky(shown.pixelColor(394, 4), "#4FD1C0", "#0E1116");
    const auto themeOf = [&](const QString& name) {
        std::map<const Theme*, int> themes;
        collectThemes(view(name), themes);
        EXPECT_EQ(themes.size(), 1U) << name.toStdString();
        EXPECT_GT(themes.begin()->second, 50) << "objects that were given the theme";
        return themes.begin()->first;
    };
    const Theme* light = themeOf("light");
    EXPECT_EQ(light->secondaryColor(), QColor("#8E1B4E"));
    EXPECT_EQ(light->fieldRadius(), 1);
    EXPECT_EQ(themeOf("dark")->secondaryColor(), QColor("#4FD1C0"));
    EXPECT_EQ(diagnostics->lines, std::vector<std::string>());

    // A change is drawn at once; what cannot be read is told once.
    const auto hasColour = [&](const QColor& colour) {
        const QImage now = window.window().grabWindow();
        int points = 0;
        for (int y = 0; y < now.height(); ++y)
            for (int x = 0; x < now.width() / 2; ++x)
                points += now.pixelColor(x, y) == colour ? 1 : 0;
        return points > 1000;
    };
    EXPECT_TRUE(hasColour("#8E1B4E"));
    for (const char* brand : {"#2255AA", "#FFE000", "#2255AA", "#FFE000"}) {
        window.window().setProperty("brand", QColor(brand));
        window.settle();
        EXPECT_EQ(hasColour("#2255AA"), std::string_view(brand) == "#2255AA");
        EXPECT_FALSE(hasColour("#FFE000"));
    }
    std::vector<std::string> told;
    for (const char* pair :
         {"\"canvas\" has 1.25", "\"card\" has 1.32", "\"segment\" has 1.17", "\"range\" has 1.11"})
        told.push_back(std::string("Appearance: light \"secondary\" on ") + pair +
                       " to 1 of the 4.5 to 1 that it needs; drawn as #796a00");
    EXPECT_EQ(diagnostics->lines, told);

    // A view that goes takes its theme with it.
    QQmlEngine* engine = qmlEngine(&window.window());
    const auto themes = engine->findChildren<Theme*>().size();
    window.window().setProperty("hasDark", false);
    EXPECT_TRUE(Window::waitFor([&] { return engine->findChildren<Theme*>().size() == themes - 1; }));
    EXPECT_EQ(window.takeWarnings(), std::vector<std::string>());
}

TEST(ThemeTest, ATableRefusesARoleThatThereIsNot) {
    QQmlEngine engine;
    for (const char* line : {"light.primary: 'red'", "cornerRadius: 4", "fontFaces: ['qrc:/brand.ttf']"}) {
        QQmlComponent component(&engine);
        component.setData(QByteArray("import Ombrivane\nAppearance {") + line + "}", QUrl());
        EXPECT_TRUE(component.isReady()) << component.errorString().toStdString();
    }
    for (const char* line : {"light.accent: 'red'", "radius: 4", "cornerRadius: 'round'"}) {
        QQmlComponent component(&engine);
        component.setData(QByteArray("import Ombrivane\nAppearance {") + line + "}", QUrl());
        EXPECT_TRUE(component.isError()) << line;
    }
}

/// Puts the application's palette and font back.
struct DeviceKept {
    ~DeviceKept() {
        QGuiApplication::setPalette(palette);
        QGuiApplication::setFont(font);
    }
    QPalette palette = QGuiApplication::palette();
    QFont font = QGuiApplication::font();
};

TEST(ThemeTest, AViewFollowsTheDeviceUnlessItsHostSaysOtherwise) {
    QQmlEngine engine;
    const auto make = [&engine](const char* properties) {
        QQmlComponent component(&engine);
        component.setData(QByteArray("import Ombrivane\nOmbrivaneView {") + properties + "}", QUrl());
        return std::unique_ptr<QObject>(component.create());
    };
    const auto following = make("");
    const auto decided = make("dark: false; textScale: 1; boldText: false");
    const auto look = [](const std::unique_ptr<QObject>& view) {
        const auto* theme = qobject_cast<ThemedScope*>(view.get())->theme();
        return Look{theme->isDark(), theme->textScale(), theme->isMotionReduced(), theme->textWeight() > 400};
    };
    const DeviceKept device;
    QGuiApplication::setPalette(QPalette(Qt::white)); // a light window
    EXPECT_EQ(look(following), Look());
    EXPECT_EQ(look(decided), Look());

    QGuiApplication::setPalette(QPalette(QColor("#202020")));
    QFont large = device.font;
    large.setPixelSize(24);
    large.setWeight(QFont::Bold);
    QGuiApplication::setFont(large);
    EXPECT_EQ(look(following), (Look{.dark = true, .textScale = 1.6, .boldText = true}));
    EXPECT_TRUE(following->property("dark").toBool());
    EXPECT_EQ(look(decided), Look());
    for (const char* name : {"dark", "textScale", "boldText"})
        QQmlProperty(decided.get(), name).reset();
    EXPECT_EQ(look(decided), look(following));
    following->setProperty("dark", false);
    following->setProperty("reducedMotion", true);
    EXPECT_EQ(look(following), (Look{.textScale = 1.6, .reducedMotion = true, .boldText = true}));
}

} // namespace
} // namespace ombrivane::view
