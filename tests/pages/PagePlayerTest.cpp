#include "pages/PagePlayer.h"

#include "device/QtPlatform.h"
#include "events/HostEvents.h"
#include "sandbox/Sandbox.h"
#include "services/ServiceHosts.h"

#include <gtest/gtest.h>

#include <QGuiApplication>

#include <sstream>

namespace ombrivane::kit {
namespace {

/// Two tests of a wallet in one program: the player of the first goes in the middle of a request, and the
/// other one brings ports of its own.
TEST(PagePlayerTest, OneThatGoesIsNotToldOfWhatWasUnderWay) {
    int count = 1;
    char name[] = "pages_tests";
    char* values[] = {name, nullptr};
    const QGuiApplication application(count, values);
    sandbox::Sandbox service;
    service.setFaults({"/get-token silence"});
    service.start();
    ServiceHosts::use({.production = service.address(), .test = service.address()});
    const auto ports = [&service] { return view::qtPlatform(service.caFile().string()); };
    const auto open = [&service](PagePlayer& player, const char* lines) {
        view::OmbrivaneSession session;
        session.clientId = "wallet";
        session.clientSecret = "wallet-secret";
        session.setCallback(player.heardBy({}));
        std::istringstream script(lines);
        const auto ending = player.play(script, session);
        return ending == journey::Ending::done &&
               PagePlayer::runUntil([&service] { return !service.requests().empty(); },
                                    std::chrono::seconds(10));
    };

    std::optional<PagePlayer> player(ports());
    EXPECT_TRUE(open(*player, "open\n"));
    player.reset();
    service.setFaults({});
    player.emplace(ports());
    EXPECT_TRUE(open(*player, "open\nwait-screen MainView\nno-event failed-call\nno-event callback\n"));

    // A page that goes while it is played over, as at an event that its wallet hears.
    auto going = std::make_unique<view::OmbrivaneSession>();
    going->clientId = "wallet";
    going->clientSecret = "wallet-secret";
    const auto leaving = HostEvents::shared().listen([&going](const Event& event) {
        if (event.kind == EventKind::screenShown)
            QMetaObject::invokeMethod(
                qApp, [&going] { going.reset(); }, Qt::QueuedConnection);
    });
    std::istringstream cut("open\nwait SomewhereElse.key 1 0.2\n");
    EXPECT_EQ(player->play(cut, *going), journey::Ending::expectationFailed);
    EXPECT_EQ(going, nullptr);

    // A script restores what the wallet kept.
    view::OmbrivaneSession session;
    session.clientId = "wallet";
    session.clientSecret = "wallet-secret";
    std::istringstream round("open\nwait-screen MainView\nset MainView.tabSelection \"roundTrip\"\n");
    EXPECT_EQ(player->play(round, session), journey::Ending::done);
    const std::string kept = session.saveState().toStdString();
    session.drop();
    EXPECT_TRUE(open(*player, ("restore " + kept + "\nwait MainView.tabSelection \"roundTrip\"\n").c_str()));
}

} // namespace
} // namespace ombrivane::kit
