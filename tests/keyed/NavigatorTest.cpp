#include "keyed/Navigator.h"

#include "keyed/Action.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ombrivane {
namespace {

using Log = std::vector<std::string>;

/// A screen that can show a pushed one, a sheet and an alert, with one part that can be exchanged.
class Page final : public Screen {
public:
    Page(std::string_view name, Log& log) : Screen(name), log_(log) {}

    void appear() override {
        log_.push_back("+" + std::string(name()));
        if (whenShown) whenShown();
    }
    void disappear() override { log_.push_back("-" + std::string(name())); }

    std::function<void()> whenShown;
    std::function<void(Page&)> prepare; ///< applied to what is shown next
    Published<bool> push{fields, "push"};
    Published<bool> sheet{fields, "sheet"};
    Published<bool> alert{fields, "alert"};
    Published<std::shared_ptr<Page>> inner{fields, "inner"};
    int taps = 0;
    Action<> tap{*this, "tap", [this] { ++taps; }};

private:
    std::shared_ptr<Page> make(std::string_view name) {
        auto page = std::make_shared<Page>(name, log_);
        if (prepare) prepare(*page);
        return page;
    }

    Log& log_;
    Link pushLink_{*this, Presentation::push, push, [this] { return make("push"); }};
    Link sheetLink_{*this, Presentation::sheet, sheet, [this] { return make("sheet"); }};
    Link alertLink_{*this, Presentation::alert, alert, [this] { return make("alert"); }};
    Part innerPart_{*this, "inner", [this] { return inner.get(); }};
};

} // namespace

template <> struct Keyed<std::shared_ptr<Page>> {
    static Json toJson(const std::shared_ptr<Page>& page) { return page != nullptr; }
    static std::shared_ptr<Page> fromJson(const Json& /*json*/) { throw KeyedError("a page cannot be set"); }
};

namespace {

class NavigatorTest : public testing::Test {
protected:
    NavigatorTest() { navigator->start(); }
    Page& top() { return static_cast<Page&>(*navigator->top()); }
    Log names() const {
        Log list;
        for (const auto& entry : navigator->stack())
            list.emplace_back(entry.screen->name());
        return list;
    }
    Log taken() { return std::exchange(log, {}); }

    Log log;
    std::shared_ptr<Page> root = std::make_shared<Page>("root", log);
    std::unique_ptr<Navigator> navigator = std::make_unique<Navigator>(root);
};

TEST_F(NavigatorTest, APushedScreenCoversWhatASheetOrAnAlertLeavesInPlace) {
    EXPECT_EQ(taken(), (Log{"+root"}));
    root->push = true;
    EXPECT_EQ(taken(), (Log{"-root", "+push"}));
    const auto pushed = navigator->top();
    top().sheet = true;
    top().alert = true;
    EXPECT_EQ(taken(), (Log{"+sheet", "+alert"}));
    EXPECT_EQ(names(), (Log{"root", "push", "sheet", "alert"}));

    static_cast<Page&>(*pushed).tap();
    root->tap();
    EXPECT_EQ(static_cast<Page&>(*pushed).taps + root->taps, 0) << "a covered screen takes no tap";

    EXPECT_TRUE(navigator->back());
    EXPECT_TRUE(navigator->back());
    EXPECT_EQ(taken(), (Log{"-alert", "-sheet"}));
    static_cast<Page&>(*pushed).tap();
    EXPECT_EQ(static_cast<Page&>(*pushed).taps, 1);
    EXPECT_TRUE(navigator->back());
    EXPECT_EQ(taken(), (Log{"-push", "+root"}));
    EXPECT_FALSE(root->push.get());
    static_cast<Page&>(*pushed).tap();
    EXPECT_EQ(static_cast<Page&>(*pushed).taps, 1) << "a screen that left takes no tap";
    EXPECT_FALSE(navigator->back());
    EXPECT_TRUE(taken().empty());
}

TEST_F(NavigatorTest, AFlagThatFallsTakesEverythingAboveWithItAndClearsTheFlagsThatStay) {
    root->push = true;
    const auto pushed = std::static_pointer_cast<Page>(navigator->top());
    pushed->push = true;
    root->sheet = true; // the root's own, above two that are pushed
    top().push = true;
    EXPECT_EQ(names(), (Log{"root", "push", "push", "sheet", "push"}));
    taken();

    root->push = false;
    EXPECT_EQ(names(), (Log{"root"}));
    EXPECT_EQ(taken(), (Log{"-push", "+root"})) << "only what was in view leaves it";
    EXPECT_FALSE(root->sheet.get()) << "it would come back by itself";
    pushed->push = false;
    pushed->push = true;
    EXPECT_EQ(names(), (Log{"root"})) << "the flags of a screen that left show nothing";
}

TEST_F(NavigatorTest, AssignmentsThatChangeNothingMoveNothing) {
    root->push = true;
    const auto pushed = navigator->top();
    taken();
    root->push = true;
    root->alert = false;
    EXPECT_EQ(navigator->top(), pushed);
    EXPECT_TRUE(taken().empty());
}

TEST_F(NavigatorTest, ADestinationMayGoOnOrGiveUpAtOnce) {
    root->prepare = [](Page& page) { page.sheet = true; };
    root->push = true;
    EXPECT_EQ(names(), (Log{"root", "push", "sheet"}));
    root->push = false;

    root->prepare = [](Page& page) { page.whenShown = [&page] { page.dismiss(); }; };
    taken();
    root->push = true;
    EXPECT_EQ(names(), (Log{"root"}));
    EXPECT_FALSE(root->push.get());
    EXPECT_EQ(taken(), (Log{"-root", "+push", "-push", "+root"}));
}

TEST_F(NavigatorTest, TheRootMayGoOnWhileItIsBroughtIntoView) {
    navigator.reset();
    root->whenShown = [this] {
        root->whenShown = nullptr;
        root->push = true;
    };
    taken();
    navigator = std::make_unique<Navigator>(root);
    EXPECT_TRUE(taken().empty()) << "nothing appears before the start";
    navigator->start();
    EXPECT_EQ(taken(), (Log{"+root", "-root", "+push"}));
    EXPECT_EQ(names(), (Log{"root", "push"}));
}

TEST_F(NavigatorTest, PartsComeAndGoWithTheirFieldAndShowScreensOfTheirOwn) {
    const auto one = std::make_shared<Page>("one", log);
    const auto two = std::make_shared<Page>("two", log);
    taken();
    root->inner = one;
    root->inner = two;
    EXPECT_EQ(taken(), (Log{"+one", "-one", "+two"}));
    one->push = true;
    EXPECT_EQ(names(), (Log{"root"})) << "a part that is not there shows nothing";
    one->push = false;
    taken();

    two->push = true;
    EXPECT_EQ(taken(), (Log{"-two", "-root", "+push"}));
    EXPECT_EQ(navigator->find("two"), two);
    EXPECT_EQ(navigator->find("one"), nullptr);
    two->tap();
    EXPECT_EQ(two->taps, 0) << "what covers the screen covers its parts";

    root->inner = one;
    EXPECT_EQ(names(), (Log{"root"})) << "what a part showed goes with the part";
    one->tap();
    EXPECT_EQ(one->taps, 1);
}

TEST_F(NavigatorTest, DismissingAPartDismissesTheScreenThatShowsIt) {
    const auto card = std::make_shared<Page>("card", log);
    root->prepare = [&](Page& page) { page.inner = card; };
    root->sheet = true;
    ASSERT_EQ(navigator->find("card"), card);
    card->dismiss();
    EXPECT_FALSE(root->sheet.get());
    EXPECT_EQ(names(), (Log{"root"}));
    root->dismiss(); // no link shows it
    EXPECT_EQ(names(), (Log{"root"}));
}

TEST_F(NavigatorTest, TellsAfterTheStackHasSettled) {
    std::vector<std::size_t> sizes;
    const auto heard = navigator->observe([&] {
        const std::size_t size = navigator->stack().size();
        if (sizes.empty() || sizes.back() != size) sizes.push_back(size);
    });
    root->prepare = [](Page& page) { page.sheet = true; };
    root->push = true;
    root->push = false;
    EXPECT_EQ(sizes, (std::vector<std::size_t>{3, 1}));
}

TEST_F(NavigatorTest, ItsEndMakesEveryScreenDisappearTopmostFirstAndWritesNoFlag) {
    root->sheet = true;
    const auto sheet = navigator->top();
    taken();
    navigator.reset();
    EXPECT_EQ(taken(), (Log{"-sheet", "-root"}));
    EXPECT_TRUE(root->sheet.get());
    root->sheet = false;
    root->push = true;
    sheet->dismiss();
    EXPECT_TRUE(taken().empty());
}

TEST_F(NavigatorTest, MayEndWhileItTellsOrShows) {
    root->prepare = [this](Page& page) { page.whenShown = [this] { navigator.reset(); }; };
    root->push = true;
    EXPECT_EQ(navigator, nullptr);
    EXPECT_EQ(taken().back(), "-push");

    root->push = false;
    navigator = std::make_unique<Navigator>(root);
    navigator->start();
    const auto heard = navigator->observe([this] { navigator.reset(); });
    root->alert = true;
    EXPECT_EQ(navigator, nullptr);
}

} // namespace
} // namespace ombrivane
