#include "Complaints.h"
#include "DemoWallet.h"
#include "Onscreen.h"
#include "Walk.h"
#include "Window.h"
#include "appearance/ThemedScope.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <QtQml/QQmlExtensionPlugin>

#include <cstdlib>
#include <sstream>

Q_IMPORT_QML_PLUGIN(OmbrivaneDemoPlugin)

namespace ombrivane::view {
namespace {

using demo::DemoOptions;
using demo::DemoWallet;

/// The wallet against the booking service of all tests, whose ports come back when it has gone.
class DemoTest : public ::testing::Test {
protected:
    DemoTest() {
        options.testHost = service().address();
        options.ca = service().caFile();
        options.now = "2026-11-21T03:30:00Z";
        options.stillMotion = true;
        options.strip = true;
    }
    ~DemoTest() override {
        wallet.reset();
        service().setScenarios({});
        Platform::install(device_);
    }

    /// Plays the lines against a wallet of the options.
    void play(const char* lines) {
        options.script = "lines of the test";
        if (!wallet) wallet = std::make_unique<DemoWallet>(options, ownService ? &service() : nullptr);
        std::istringstream script(lines);
        EXPECT_EQ(wallet->play(script), 0) << lines;
    }
    void click(const char* name) { play((std::string("destroy\nclick ") + name).c_str()); }
    std::string texts() { return demo::visibleTexts(wallet->window()).dump(); }

    DemoOptions options;
    bool ownService = true;
    std::unique_ptr<DemoWallet> wallet;

private:
    Platform device_ = platform();
};

TEST_F(DemoTest, WhatCannotBeUsedIsSaidBeforeAnyWindow) {
    const std::vector<std::vector<std::string>> lines{{"--script", "no/such.script"},
                                                      {"--script", "journeys"},
                                                      {"--text-scale", "big"},
                                                      {"--width", "390x"},
                                                      {"--height", "0"},
                                                      {"--brand", "4"},
                                                      {"--now"},
                                                      {"--now", "tomorrow"},
                                                      {"--nonsense"}};
    for (const auto& line : lines) {
        try {
            DemoOptions::parse(line);
            ADD_FAILURE() << line.front();
        } catch (const std::invalid_argument& bad) {
            EXPECT_NE(std::string(bad.what()).find(line.back()), std::string::npos) << bad.what();
        }
    }
}

TEST_F(DemoTest, APictureThatCannotBeWrittenEndsTheScript) {
    play("show\n");
    std::istringstream script("picture no/such/folder/a.png\n");
    EXPECT_EQ(wallet->play(script), static_cast<int>(journey::Ending::badLine));
    EXPECT_EQ(wallet->takePicture("no/such/folder/a.png"), static_cast<int>(journey::Ending::badLine));
}

TEST_F(DemoTest, MayBeClosedAtAnyOfItsFirstFrames) {
    // Each of them takes minutes under the sanitizers, so that is for the long run.
    const demo::Complaints complaints;
    const bool every = std::getenv("OMBRIVANE_EVERY_TURN") != nullptr;
    for (int events = 0; events < 200; events += every || events < 20 ? 1 : 12) {
        SCOPED_TRACE(events);
        wallet = std::make_unique<DemoWallet>(options, &service());
        ASSERT_TRUE(wallet->isReady());
        QMetaObject::invokeMethod(&wallet->window(), "openComponent");
        for (int i = 0; i < events; ++i)
            QTest::qWait(1);
        if (events % 2 == 0) wallet->window().close();
        wallet.reset();
        EXPECT_EQ(demo::Complaints::count(), 0);
    }
}

TEST_F(DemoTest, AReservationIsPaidOnceFromTheBalanceAndItsTokenIsNowhere) {
    play("play journeys/steps/booking-abroad.steps\ntap OWBookingDetailsView.continue\n"
         "wait-event reservation\nwait-event closed");
    EXPECT_NE(texts().find("NPR 250,000.00"), std::string::npos);
    for (const char* shown : {"Kathmandu – Doha", "Sunday, January 10, 2027", "Asha Lama", "NPR 27,199.00"})
        EXPECT_NE(texts().find(shown), std::string::npos) << shown;
    const auto number = wallet->account().receipts()->index(0).data(demo::Receipts::Title).toString();
    EXPECT_EQ(number.size(), 6);
    EXPECT_NE(texts().find(number.toStdString()), std::string::npos);
    click("pay");
    EXPECT_NE(texts().find("NPR 222,801.00"), std::string::npos);
    EXPECT_EQ(wallet->session().walletBalance, 222801);
    EXPECT_FALSE(wallet->account().pay(0));
    EXPECT_FALSE(wallet->account().pay(7));
    click("fold");
    EXPECT_NE(texts().find("bookingReferenceID"), std::string::npos);
    int tokens = 0;
    for (const auto& request : service().requests()) {
        for (const auto& header : request.headers) {
            if (header.value.rfind("Bearer ", 0) != 0) continue;
            ++tokens;
            EXPECT_EQ(texts().find(header.value.substr(7)), std::string::npos);
        }
    }
    EXPECT_GT(tokens, 0);
}

TEST_F(DemoTest, EachConditionIsFeltAndSaid) {
    play("wait-screen MainView\ndestroy");
    auto& conditions = wallet->conditions();
    auto* component = wallet->window().findChild<ThemedScope*>("component");
    const std::pair<const char*, std::function<bool()>> effects[] = {
        {"Look Dark", [&] { return component->isDark(); }},
        {"Text size 200 %", [&] { return component->textScale() == 2; }},
        {"Language العربية",
         [&] { return wallet->session().language == "ar" && texts().find("الرصيد") != texts().npos; }},
        {"Brand Cedar", [&] { return wallet->window().title() == "Cedar"; }},
        {"dearer", [&] { return conditions.scenarios() == QStringList{"dearer"}; }},
        {"expires-soon",
         [&] {
             return conditions.scenarios() == QStringList{"dearer", "expires-soon"};
         }},
        {"sold-out", [&] { return conditions.on().size() == 3; }},
    };
    QStringList said;
    for (const auto& [name, isFelt] : effects) {
        EXPECT_FALSE(isFelt()) << name;
        click(name);
        EXPECT_TRUE(isFelt()) << name;
        said.append(conditions.said());
        EXPECT_NE(texts().find(said.last().toStdString()), std::string::npos) << name;
    }
    EXPECT_EQ(said.removeDuplicates(), 0);

    play("speak\nplay journeys/steps/abroad.steps\nplay journeys/steps/one-way.steps\ntap "
         "content.rows[0].tap\n"
         "tap continue\nwait RulesAndRegulationView.showProgressView false\ntap "
         "RulesAndRegulationView.continue\n"
         "wait-event failed-call {\"endpoint\":\"/availability\"}\ndestroy");
    click("offline");
    play("wait-event callback {\"error\":{\"code\":1}}");
    EXPECT_NE(texts().find("انتهت الرحلات الجوية"), std::string::npos) << "a card of the wallet";
}

TEST_F(DemoTest, AStripWithoutRoomStandsBehindAButtonAndIsWorkedByKeys) {
    ownService = false;
    play("destroy");
    wallet->window().resize(390, 844);
    EXPECT_TRUE(Window::waitFor([&] { return demo::visibleItem(wallet->window(), "offline") == nullptr; }));
    click("conditions");
    QTest::keyClick(&wallet->window(), Qt::Key_Tab);
    EXPECT_EQ(wallet->window().activeFocusItem()->objectName(), "Look Device");
    QTest::keyClick(&wallet->window(), Qt::Key_Tab);
    QTest::keyClick(&wallet->window(), Qt::Key_Tab);
    QTest::keyClick(&wallet->window(), Qt::Key_Return);
    EXPECT_EQ(wallet->conditions().look(), "dark");
    auto* spoken = QAccessible::queryAccessibleInterface(wallet->window().activeFocusItem());
    EXPECT_EQ(spoken->text(QAccessible::Name), "Look: Dark");
    EXPECT_TRUE(spoken->state().checked);
    EXPECT_FALSE(demo::visibleItem(wallet->window(), "dearer")->isEnabled()) << "another service is in use";
    EXPECT_NE(texts().find("--test-host"), std::string::npos);
    wallet->conditions().turn("dearer", true);
    EXPECT_EQ(wallet->conditions().on(), QStringList());
    QTest::keyClick(&wallet->window(), Qt::Key_Escape);
    EXPECT_EQ(demo::visibleItem(wallet->window(), "offline"), nullptr);
}

TEST_F(DemoTest, PlaysWhatTheGalleryAndTheWalletShow) {
    const QTemporaryDir folder;
    options.pictures = folder.path().toStdString();
    for (const char* file : {"tests/view/gallery/home.script",
                             "tests/view/gallery/payment.script",
                             "tests/view/gallery/trouble.script",
                             "demo/booking.script"}) {
        SCOPED_TRACE(file);
        play((std::string("play ") + file).c_str());
        wallet.reset();
    }
    for (const char* picture : {"session-expired", "ticket", "no-offers", "wallet-paid"})
        EXPECT_FALSE(QImage(folder.filePath(QString(picture) + ".png")).isNull()) << picture;
    ownService = false;
    std::istringstream faults("faults /documents drop");
    wallet = std::make_unique<DemoWallet>(options);
    EXPECT_EQ(wallet->play(faults), 2) << "of another booking service";
}

TEST_F(DemoTest, ABalanceThatDoesNotReachStays) {
    demo::WalletAccount account(100);
    account.keep(R"({"totalCost": 101, "bearerToken": "secret", "bookingSummary": {"currency": "NPR"}})");
    account.keep("no JSON");
    EXPECT_EQ(account.receipts()->rowCount(), 1);
    EXPECT_FALSE(account.pay(0));
    EXPECT_EQ(account.balance(), 100);
}

} // namespace
} // namespace ombrivane::view
