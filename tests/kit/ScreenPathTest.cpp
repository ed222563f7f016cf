#include "script/ScreenPath.h"

#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Rows.h"

#include "fakes/World.h"

#include <gtest/gtest.h>

namespace ombrivane::journey {
namespace {

struct Offer final : Screen {
    explicit Offer(int cost) : Screen("Offer"), price(fields, "price", cost) {}
    Published<int> price;
    Published<int> taps{fields, "taps"};
    Action<> tap{*this, "tap", [this] { taps = taps.get() + 1; }};
};

struct Inner final : Screen {
    Inner() : Screen("Inner") {}
    Published<std::string> origin{fields, "origin", "KTM"};
};

struct Deals {
    Fields fields;
    Published<bool> isLoading{fields, "isLoading"};
};

struct Deal final : Screen {
    Deal() : Screen("Deal") {}
    Deals deals;
    Model model{fields, "deals", deals.fields};
    std::vector<std::shared_ptr<Offer>> held{std::make_shared<Offer>(7), std::make_shared<Offer>(8)};
    Rows rows{*this, "rows", [this] { return held.size(); }, [this](std::size_t at) { return held.at(at); }};
    Rows none{*this, "none", [] { return std::size_t(0); }, [](std::size_t) { return nullptr; }};
    std::shared_ptr<Inner> inner = std::make_shared<Inner>();
    Part form{*this, "form", [this] { return inner; }};
};

class ScreenPathTest : public testing::Test {
protected:
    ScreenPathTest() { navigator.start(); }
    fakes::World world;
    std::shared_ptr<Deal> deal = std::make_shared<Deal>();
    Navigator navigator{deal};
};

TEST_F(ScreenPathTest, LeadsToWhatStandsAtItsEnd) {
    const std::pair<const char*, Json> table[] = {
        {"Deal.rows", 2},
        {"rows[1].price", 8},
        {"Deal.rows[0].price", 7},
        {"Deal.form.origin", "KTM"},
        {"Inner.origin", "KTM"},
        {"origin", "KTM"},
        {"Deal.isLoading", false},
        {"model.isLoading", false},
        {"Deal.deals.isLoading", false},
    };
    for (const auto& [path, value] : table) {
        const auto found = find(&navigator, path);
        ASSERT_TRUE(found) << found.problem();
        EXPECT_EQ(found->read(), value) << path;
        EXPECT_EQ(found.problem(), "");
    }
    find(&navigator, "Deal.rows[1].tap")->trigger({});
    EXPECT_EQ(deal->held[1]->taps.get(), 1);
}

TEST_F(ScreenPathTest, SaysWhichStepIsNotThereAndWhatIs) {
    const std::string keys = "it has deals (isLoading), rows, none; Inner, inside of it, has origin";
    const std::pair<const char*, std::string> table[] = {
        {"Dael.rows",
         "\"Dael\" is neither a screen on the stack (Deal, Inner) nor a key of the topmost one, Deal; " +
             keys},
        {"Deal.price", "Deal has no \"price\"; " + keys},
        {"", "Deal has no \"\"; " + keys},
        {"Deal.rows[2].tap", "\"rows\" of Deal has no row 2: its rows are 0 to 1"},
        {"Deal.none[0].tap", "\"none\" of Deal has no row 0: it is empty"},
        {"Deal.rows[1]", "a row has no value of its own; name a key of it: it has price, taps, tap"},
        {"Deal.rows[1].top", "Offer has no \"top\"; it has price, taps, tap"},
        {"Deal.form.origin[0].x", "\"origin\" of Inner is no list"},
        {"Deal.isLoading.x", "\"isLoading\" of Deal has nothing below it, no \"x\" either"},
        {"Deal.deals.loading", "\"deals\" has no \"loading\"; it has isLoading"},
    };
    for (const auto& [path, sentence] : table) {
        const auto found = find(&navigator, path);
        EXPECT_FALSE(found) << path;
        EXPECT_EQ(found.problem(), path + std::string(": ") + sentence);
        EXPECT_THROW((void)found->read(), KeyedError) << path;
    }
    for (const char* path : {"rows[",
                             "rows[]",
                             "rows[-1].tap",
                             "rows[0.tap",
                             "rows[0]x.tap",
                             "rows[99999999999999999999].tap",
                             "rows[0][1].tap"})
        EXPECT_NE(find(&navigator, path).problem().find("does not read"), std::string::npos) << path;
    EXPECT_EQ(find(nullptr, "Deal.rows").problem(), "Deal.rows: the component is not open");
}

} // namespace
} // namespace ombrivane::journey
