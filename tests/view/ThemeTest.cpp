#include "Window.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QQmlComponent>

#include <cmath>

namespace ombrivane::view {
namespace {

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const double light = std::max(luminance(one), luminance(other));
    const double dark = std::min(luminance(one), luminance(other));
    return (light + 0.05) / (dark + 0.05);
}

struct Pair {
    const char* front;
    const char* back;
    double least;
};

TEST(ThemeTest, colourPairsHaveTheContrastThatTheirUseNeeds) {
    constexpr double text = 4.5;
    constexpr double border = 3.0;
    const Pair pairs[] = {
        {"blackColor", "whiteColor", text},
        {"blackColor", "canvasColor", text},
        {"blackColor", "segmentColor", text},
        {"blackColor", "calenderRangeColor", text},
        {"blackColor", "filterBackgroundColor", text},
        {"placeHolderColor", "whiteColor", text},
        {"placeHolderColor", "canvasColor", text},
        {"primaryColor", "whiteColor", text},
        {"primaryColor", "canvasColor", text},
        {"secondaryColor", "whiteColor", text},
        {"secondaryColor", "canvasColor", text},
        {"primaryTextColor", "primaryColor", text},
        {"secondaryTextColor", "secondaryColor", text},
        {"formBorderColor", "whiteColor", border},
        {"canvasFormBorderColor", "canvasColor", border},
    };
    QQmlEngine engine;
    engine.addImportPath("qrc:/com.framework.Ombrivane/qml");
    QQmlComponent component(&engine);
    component.setData("import QtQml\nimport Ombrivane\nQtObject { property QtObject theme: Theme }", QUrl());
    const std::unique_ptr<QObject> holder(component.create());
    ASSERT_NE(holder, nullptr) << component.errorString().toStdString();
    auto* theme = holder->property("theme").value<QObject*>();
    ASSERT_NE(theme, nullptr);
    for (const bool dark : {false, true}) {
        theme->setProperty("dark", dark);
        for (const auto& pair : pairs) {
            const auto front = theme->property(pair.front).value<QColor>();
            const auto back = theme->property(pair.back).value<QColor>();
            ASSERT_TRUE(front.isValid() && back.isValid()) << pair.front << " on " << pair.back;
            EXPECT_GE(contrast(front, back), pair.least)
                << pair.front << " on " << pair.back << (dark ? " dark" : "");
        }
    }
}

} // namespace
} // namespace ombrivane::view
