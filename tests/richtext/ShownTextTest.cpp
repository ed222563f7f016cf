#include "richtext/ShownText.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

TEST(ShownText, LeavesOutWhatIsNoVisibleText) {
    struct Case {
        std::string text;
        std::string shown;
    };
    const Case cases[] = {
        {"", ""},
        {"Kathmandu - Pokhara", "Kathmandu - Pokhara"},
        {"काठमाडौं \u2192 \u00e9", "काठमाडौं \u2192 \u00e9"},
        {"12\u009C,000", "12,000"},
        {std::string("a\0b\x1B[31m\x7F", 9), "ab[31m"},
        {"one\r\ntwo\tthree\u2028four", "one two three four"},
        {"\u202Eevil\u202C \u2066x\u2069\u200E\u200F\u061C", "evil x"},
        {"a\xFF\xC3z", "a\uFFFD\uFFFDz"},
        {"\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},
        {"cut \xE0\xA4", "cut \uFFFD"},
        {"क्ष्म्य्रां", "क्ष्म्य्रां"},
        {"a\u0301\u0302\u0303\u0304\u0305\u0306\u0307\u0308\u0309\u030A\u030Bb",
         "a\u0301\u0302\u0303\u0304\u0305\u0306\u0307\u0308b"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(shownText(c.text), c.shown);
}

TEST(ShownText, EndsALongTextInAnEllipsisWithinItsLimit) {
    EXPECT_EQ(shownText("123456", 6), "123456");
    EXPECT_EQ(shownText("1234567", 6), "123\u2026");
    EXPECT_EQ(shownText("\u00e9\u00e9\u00e9", 6), "\u00e9\u00e9\u00e9");
    EXPECT_EQ(shownText("\u00e9\u00e9\u00e9x", 6), "\u00e9\u2026") << "no character is cut in two";
    const std::string sentence = "word ";
    std::string text;
    while (text.size() <= limits::shownBytes)
        text += sentence;
    EXPECT_LE(shownText(text).size(), limits::shownBytes);
    EXPECT_TRUE(shownText(text).ends_with("\u2026"));
    // What was cut behind a long word is not cut again.
    for (std::size_t maximum = 490; maximum < 520; ++maximum) {
        const std::string shown = shownText(std::string(600, 'x'), maximum);
        EXPECT_EQ(shownText(shown, maximum), shown) << maximum;
    }
}

TEST(ShownText, GivesAnOverlongWordPlacesToBreak) {
    const std::string longest(500, 'x');
    EXPECT_EQ(shownText(longest + " " + longest), longest + " " + longest);
    EXPECT_EQ(shownText(longest + longest + "x"), longest + "\u200B" + longest + "\u200Bx");
    EXPECT_EQ(shownText(longest + "\u200Bx"), longest + "\u200Bx") << "a place that is there serves";
}

} // namespace
} // namespace ombrivane
