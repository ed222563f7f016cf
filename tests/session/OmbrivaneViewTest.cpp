#include "session/OmbrivaneView.h"

#include "events/HostEvents.h"
#include "fakes/World.h"
#include "keyed/Navigator.h"
#include "search/MainView.h"
#include "session/EntryView.h"
#include "state/AppState.h"

#include <gtest/gtest.h>

#include <string_view>

namespace ombrivane {
namespace {

constexpr const char* granted = R"({"success":true,"data":{"tokenType":"Bearer","accessToken":"T1"}})";
constexpr const char* refusal = R"({"success":false,"data":{"error":"Unknown client"}})";

class OmbrivaneViewTest : public testing::Test {
protected:
    using Log = std::vector<std::string>;

    void make(std::optional<std::string> userType = std::nullopt,
              std::optional<std::string> environment = std::nullopt,
              std::optional<double> walletBalance = std::nullopt,
              std::optional<std::string> phone = std::nullopt) {
        view = std::make_unique<OmbrivaneView>(
            "wallet",
            "wallet-secret",
            std::move(userType),
            walletBalance,
            std::move(phone),
            std::move(environment),
            [this](const std::optional<Dictionary>& dictionary, const std::optional<Error>& error) {
                heard.push_back(dictionary ? dictionary->dump() : "nil");
                if (error) heard.back() += " " + error->localizedDescription;
                if (whenCalled) whenCalled();
            });
        view->onClose(
            [this] {
                heard.emplace_back("dismiss");
                if (whenClosed) whenClosed();
            },
            [this] { heard.emplace_back("dismiss frontmost"); });
    }
    void show() {
        if (!view) make();
        view->show();
    }
    std::shared_ptr<MainView> content() const {
        const auto navigator = view ? view->navigator() : nullptr;
        return navigator != nullptr ? std::dynamic_pointer_cast<MainView>(navigator->find("MainView"))
                                    : nullptr;
    }
    Log taken() { return std::exchange(heard, {}); }

    fakes::World world;
    Log heard;
    std::function<void()> whenCalled;
    std::function<void()> whenClosed;
    std::unique_ptr<OmbrivaneView> view;
    AppState& state = AppState::shared();
};

/// Fonts that look at what the bootstrap has done before.
class LookingFonts final : public FontRegistry {
public:
    explicit LookingFonts(std::function<void(const std::string&)> look) : look_(std::move(look)) {}
    void registerFont(const std::string& url) override { look_(url); }

private:
    std::function<void(const std::string&)> look_;
};

TEST_F(OmbrivaneViewTest, FetchesATokenFillsTheSessionRegistersTheFontsAndShowsTheSearch) {
    Log order;
    Platform ports = platform();
    ports.fonts = std::make_shared<LookingFonts>([&](const std::string& url) {
        order.push_back(url + " " + state.accessToken.get() + (content() ? " shown" : ""));
    });
    Platform::install(ports);
    state.accessToken = "of the session before";

    make("agent", "test", 1500.75, "9800000000");
    show();
    EXPECT_EQ(view->navigator()->top()->name(), "OmbrivaneView");
    EXPECT_EQ(state.environment.get(), "test");
    EXPECT_EQ(state.accessToken.get(), "of the session before");
    ASSERT_EQ(world.network->outstanding(), 1U);
    const HttpRequest request = world.network->waiting();
    EXPECT_EQ(request.url, "https://localhost:8443/api/b2b/v2/get-token");
    EXPECT_EQ(request.method, "POST");
    EXPECT_EQ(request.body, R"({"user_type":"agent","username":"wallet","password":"wallet-secret"})");
    EXPECT_EQ(request.headers,
              (std::vector<std::pair<std::string, std::string>>{{"Content-Type", "application/json"}}));
    EXPECT_EQ(request.timeoutInterval, std::chrono::seconds(60));

    world.network->answer(granted);
    EXPECT_EQ(state.userType.get(), "") << "the session is filled on the main queue alone";
    EXPECT_TRUE(order.empty());
    world.queue->drain();
    EXPECT_EQ(state.accessToken.get(), "T1");
    EXPECT_EQ(state.userType.get(), "agent");
    EXPECT_EQ(state.walletBalance.get(), 1500.75);
    EXPECT_EQ(state.phone.get(), "9800000000");
    EXPECT_EQ(order, (Log{"one.ttf T1", "two.ttf T1"}));
    EXPECT_EQ(world.bundles->listedExtension, "ttf");
    ASSERT_NE(content(), nullptr);
    EXPECT_EQ(content()->tabSelection.get(), TabBarItem::oneWay);
    EXPECT_TRUE(content()->takesInput());
    EXPECT_TRUE(heard.empty());
}

TEST_F(OmbrivaneViewTest, WhatTheHostDoesNotHaveHasADefaultOrStaysAbsent) {
    state.walletBalance = 3;
    state.phone = "of the session before";
    show();
    EXPECT_EQ(Json::parse(*world.network->waiting().body)["user_type"], "customer");
    EXPECT_EQ(state.environment.get(), "test");
    world.answer(granted);
    EXPECT_EQ(state.userType.get(), "customer");
    EXPECT_EQ(state.walletBalance.get(), std::nullopt);
    EXPECT_EQ(state.phone.get(), std::nullopt);
}

TEST(OmbrivaneView, TheFirstEnvironmentOfAProcessChoosesTheHostExactlyTestTheTestHost) {
    const std::pair<std::optional<std::string>, const char*> cases[] = {
        {std::nullopt, "https://localhost:8443"},
        {"test", "https://localhost:8443"},
        {"", "https://localhost:9443"},
        {"Test", "https://localhost:9443"},
        {" test", "https://localhost:9443"},
        {"production", "https://localhost:9443"},
    };
    for (const auto& [environment, host] : cases) {
        fakes::World world;
        const std::string expected = std::string(host) + "/api/b2b/v2/get-token";
        OmbrivaneView first("id", "secret", {}, {}, {}, environment, nullptr);
        first.show();
        EXPECT_EQ(world.network->waiting().url, expected) << environment.value_or("none");
        OmbrivaneView second("id", "secret", {}, {}, {}, "another", nullptr);
        second.show();
        EXPECT_EQ(world.network->last().url, expected);
        EXPECT_EQ(AppState::shared().environment.get(), "another");
        EXPECT_EQ(world.diagnostics->lines.size(), std::string_view(host) == cases[0].second ? 2U : 1U)
            << "beside that nobody named one: another was asked for, too late";
    }
}

TEST(OmbrivaneView, AnOpeningThatCouldAskNothingFixesNoHost) {
    fakes::World world;
    world.reachability->word = 0;
    OmbrivaneView first("id", "secret", {}, {}, {}, "test", nullptr);
    first.show();
    world.reachability->word = reachableFlag;
    OmbrivaneView second("id", "secret", {}, {}, {}, "production", nullptr);
    second.show();
    EXPECT_EQ(world.network->last().url, "https://localhost:9443/api/b2b/v2/get-token");
}

TEST_F(OmbrivaneViewTest, TellsTheHostOfEveryFailureOnceAndClosesInTheWayOfTheSystem) {
    struct Case {
        SystemVersion system;
        std::function<void()> fail; ///< nothing: fails by itself
        Log heard;
    };
    const auto answer = [this](const char* text) { return [this, text] { world.answer(text); }; };
    const auto lose = [this] {
        world.network->fail({"Network", 28, "The request timed out."});
        EXPECT_EQ(heard.size(), 1U) << "closing is a step of the main queue";
        world.queue->drain();
    };
    const std::vector<Case> cases{
        {{"iOS", 13, 7}, nullptr, {"nil Please update yor phone to ios 14.", "dismiss frontmost"}},
        {{"iOS", 14, 0}, answer(refusal), {"nil Unknown client", "dismiss frontmost"}},
        {{"iOS", 14, 8}, lose, {"nil The request timed out.", "dismiss frontmost"}},
        {{"iOS", 15, 0}, lose, {"nil The request timed out.", "dismiss"}},
        {{"iOS", 17, 2}, answer(refusal), {"nil Unknown client", "dismiss"}},
        {{"iOS", 17, 2}, answer("<html>"), {"nil The service's answer could not be understood.", "dismiss"}},
        {{"Android", 12, 0}, answer(refusal), {"nil Unknown client", "dismiss"}},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.system.name + std::to_string(row.system.major) + testing::PrintToString(row.heard));
        world.install(row.system);
        make();
        show();
        world.queue->drain();
        EXPECT_EQ(world.network->outstanding(), row.fail ? 1U : 0U);
        if (row.fail) row.fail();
        EXPECT_EQ(taken(), row.heard);
        EXPECT_EQ(content(), nullptr);
    }
    EXPECT_EQ(state.accessToken.version() + state.userType.version(), 0U);
    EXPECT_TRUE(world.fonts->registered.empty());

    world.install();
    world.reachability->word = 0;
    make();
    show();
    world.queue->drain();
    EXPECT_EQ(taken(), (Log{"nil You are not connected to internet.", "dismiss"}));
}

TEST_F(OmbrivaneViewTest, OneClosingFunctionServesEverySystemAndNoneIsAFaultBelowFifteen) {
    world.install({"iOS", 14, 5});
    make();
    view->onClose([this] { heard.emplace_back("dismiss"); });
    show();
    world.answer(refusal);
    EXPECT_EQ(taken(), (Log{"nil Unknown client", "dismiss"}));

    make();
    view->onClose(nullptr);
    show();
    world.answer(refusal);
    EXPECT_EQ(taken(), (Log{"nil Unknown client"}));
    EXPECT_EQ(world.takeFaults().size(), 1U) << "the application has no window";
}

TEST_F(OmbrivaneViewTest, BackOnTheFirstScreenClosesWithoutAWord) {
    show();
    world.answer(granted);
    const auto main = content();
    main->back();
    EXPECT_TRUE(heard.empty());
    world.queue->drain();
    EXPECT_EQ(taken(), (Log{"dismiss"}));
    main->back();
    world.queue->drain();
    EXPECT_TRUE(taken().empty());
}

TEST_F(OmbrivaneViewTest, AViewDroppedAtAnyStepIsSilentFromThere) {
    show();
    view.reset();
    world.answer(granted);

    show();
    view.reset();
    world.answer(refusal);

    show();
    world.network->answer(granted);
    view.reset();
    world.queue->drain();
    EXPECT_EQ(state.accessToken.version(), 0U);
    EXPECT_TRUE(world.fonts->registered.empty());
    EXPECT_TRUE(taken().empty());

    whenCalled = [this] { view.reset(); };
    show();
    world.answer(refusal);
    EXPECT_EQ(taken(), (Log{"nil Unknown client"})) << "the host took it away already";

    show();
    world.answer(granted);
    const auto main = content();
    ASSERT_NE(main, nullptr);
    view.reset();
    main->back();
    world.queue->drain();
    EXPECT_TRUE(taken().empty());
}

/// Every call of the host, those that come before `show` has returned included, by everything that it may do
/// with its view.
TEST_F(OmbrivaneViewTest, TheHostMayDropShowAgainOrShowAnotherInsideOfEveryCall) {
    struct Event {
        const char* name;
        bool closing; ///< the host acts when it is asked to close, and not when it is told
        std::function<void()> happen;
    };
    const auto offline = [this] {
        world.reachability->word = 0;
        show();
        world.queue->drain();
    };
    const auto tooOld = [this] {
        world.install({"iOS", 13, 0});
        show();
        world.queue->drain();
    };
    const auto refusedToken = [this] {
        show();
        world.answer(refusal);
    };
    const auto left = [this] {
        show();
        world.answer(granted);
        content()->back();
        world.queue->drain();
    };
    const Event events[] = {{"no connection", false, offline},
                            {"no connection, closing", true, offline},
                            {"a system that is too old", false, tooOld},
                            {"a refused token", false, refusedToken},
                            {"a refused token, closing", true, refusedToken},
                            {"left by the customer", true, left}};
    const std::pair<const char*, std::function<void()>> actions[] = {{"drop", [this] { view.reset(); }},
                                                                     {"show again", [this] { view->show(); }},
                                                                     {"show another", [this] {
                                                                          make();
                                                                          show();
                                                                      }}};
    for (const auto& event : events) {
        for (const auto& [name, action] : actions) {
            SCOPED_TRACE(std::string(event.name) + ": " + name);
            make();
            std::size_t acted = 0;
            (event.closing ? whenClosed : whenCalled) = [&, act = action] {
                if (acted++ > 0) return;
                world.install();
                world.reachability->word = reachableFlag;
                taken();
                act();
            };
            event.happen();
            EXPECT_EQ(acted, 1U);
            EXPECT_TRUE(taken().empty()) << "the one that was told is not told more";
            if (view) world.answer(granted);
            EXPECT_EQ(content() != nullptr, view != nullptr);
            whenCalled = whenClosed = nullptr;
            view.reset();
        }
    }
}

/// In the middle of what it hears.
TEST_F(OmbrivaneViewTest, AListenerMayDropTheViewOrShowItAgain) {
    for (const EventKind kind : {EventKind::closed, EventKind::opened, EventKind::screenShown}) {
        for (const bool drops : {true, false}) {
            SCOPED_TRACE(std::string(nameOf(kind)) + (drops ? " drops" : " shows"));
            make();
            show();
            world.answer(granted);
            int heardOf = 0;
            const auto listening = HostEvents::shared().listen([&](const Event& event) {
                if (event.kind != kind || heardOf++ > 0) return;
                if (drops) {
                    view.reset();
                } else {
                    view->show();
                }
            });
            view->show();
            while (world.network->outstanding() > 0)
                world.answer(granted);
            EXPECT_EQ(content() != nullptr, !drops);
            EXPECT_GE(heardOf, 1);
            view.reset();
        }
    }
}

TEST_F(OmbrivaneViewTest, WhatIsRestoredWaitsForTheOpeningThatGetsItsToken) {
    auto& form = MainViewModel::shared();
    form.departCity = "Delhi";
    const std::string kept = OmbrivaneView("", "", {}, {}, {}, {}, nullptr).saveState();
    form.departCity = "";
    make();
    ASSERT_TRUE(view->restoreState(kept));
    EXPECT_EQ(view->saveState(), kept);
    world.reachability->word = 0;
    show();
    world.queue->drain();
    EXPECT_EQ(view->unrestoredState(), kept);
    world.reachability->word = reachableFlag;
    show();
    EXPECT_EQ(view->saveState(), kept) << "the token is under way";
    EXPECT_EQ(form.departCity.get(), "");
    world.answer(granted);
    EXPECT_EQ(form.departCity.get(), "Delhi");
    EXPECT_EQ(view->unrestoredState(), "");
    form.departCity = "Doha";
    EXPECT_NE(view->saveState(), kept);
    show();
    world.answer(granted);
    EXPECT_EQ(form.departCity.get(), "Doha") << "taken up once";
}

TEST_F(OmbrivaneViewTest, AnotherViewBeginsWithoutTheSheetOfTheOneThatLives) {
    show();
    world.answer(granted);
    MainViewModel::shared().showTravellerSheet = true;
    OmbrivaneView another("id", "secret", {}, {}, {}, {}, nullptr);
    another.show();
    world.answer(granted);
    EXPECT_EQ(another.navigator()->stack().size(), 1U);
}

TEST_F(OmbrivaneViewTest, ShownAgainItStartsAgainAndKeepsWhatTheProcessKeeps) {
    show();
    view->show();
    ASSERT_EQ(world.network->outstanding(), 2U);
    world.answer(refusal);
    EXPECT_TRUE(taken().empty()) << "the bootstrap before counts no more";
    world.answer(granted);
    state.nationality = "IN";
    MainViewModel::shared().showTravellerSheet = true;
    ASSERT_EQ(view->navigator()->stack().size(), 2U);
    const std::size_t sent = world.network->sent().size();

    view->show();
    EXPECT_EQ(content(), nullptr);
    ASSERT_GT(world.network->sent().size(), sent);
    EXPECT_EQ(world.network->last().url, "https://localhost:8443/api/b2b/v2/get-token");
    world.network->answer(R"({"success":true,"data":{"tokenType":"Bearer","accessToken":"T2"}})",
                          world.network->outstanding() - 1);
    world.queue->drain();
    EXPECT_NE(content(), nullptr);
    EXPECT_EQ(state.accessToken.get(), "T2");
    EXPECT_EQ(state.nationality.get(), "IN");
    EXPECT_EQ(view->navigator()->stack().size(), 1U) << "a sheet that lay over the form is gone";
    EXPECT_EQ(world.fonts->registered, (Log{"one.ttf", "two.ttf"})) << "once per process";
    ASSERT_EQ(world.diagnostics->lines.size(), 1U) << "that nobody named a service, once";
    EXPECT_TRUE(world.diagnostics->lines[0].ends_with("asking https://localhost:8443"));
}

TEST_F(OmbrivaneViewTest, FontsThatCannotBeListedAreTriedAgainByTheNextBootstrap) {
    const auto bootstrap = [this] {
        make();
        show();
        world.network->answer(granted, world.network->outstanding() - 1);
        world.queue->drain();
    };
    world.bundles->fonts = std::nullopt;
    bootstrap();
    EXPECT_NE(content(), nullptr) << "a search without its fonts is still a search";
    EXPECT_TRUE(world.fonts->registered.empty());
    world.bundles->fonts = {{"late.ttf"}};
    bootstrap();
    bootstrap();
    EXPECT_EQ(world.fonts->registered, (Log{"late.ttf"}));
}

TEST_F(OmbrivaneViewTest, ABundleThatDoesNotExistIsAFault) {
    world.bundles->identifier = "com.other";
    show();
    world.answer(granted);
    EXPECT_EQ(world.takeFaults().size(), 1U);
    EXPECT_EQ(content(), nullptr);
}

} // namespace
} // namespace ombrivane
