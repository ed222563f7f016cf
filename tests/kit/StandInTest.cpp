#include "outcomes/StandIn.h"

#include "events/HostEvents.h"
#include "session/Reservations.h"

#include "fakes/World.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <thread>

namespace ombrivane::kit {
namespace {

/// Every combination that changes the form of a dictionary.
std::vector<Booked> everyBooking() {
    std::vector<Booked> all;
    for (int bits = 0; bits < 32; ++bits)
        all.push_back({.isRoundTrip = (bits & 1) != 0,
                       .isAbroad = (bits & 2) != 0,
                       .adults = 2,
                       .children = (bits & 4) != 0 ? 2U : 0U,
                       .infants = (bits & 4) != 0 ? 1U : 0U,
                       .hasCashBack = (bits & 8) != 0,
                       .hasTotalCost = (bits & 16) != 0});
    return all;
}

class StandInTest : public testing::Test {
protected:
    void receive(const std::optional<Dictionary>& dictionary, const std::optional<Error>& error) {
        if (dictionary) heard.push_back(dictionary->at("exit").get<bool>() ? "reserved" : "paid");
        if (error) heard.emplace_back(nameOf(kindOf(*error)));
        if (dictionary.has_value() == error.has_value()) heard.emplace_back("both or neither");
        kept = Reservations::shared().pending();
        onMain = std::this_thread::get_id() == main;
    }

    fakes::World world;
    std::thread::id main = std::this_thread::get_id();
    std::vector<std::string> heard;
    std::size_t kept = 0;
    bool onMain = false;
    StandIn standIn{[this](auto dictionary, auto error) { receive(dictionary, error); },
                    [this] { heard.emplace_back("close"); }};
};

TEST_F(StandInTest, HandsOverWhatTheContractPromises) {
    const auto output = std::filesystem::temp_directory_path() / ("outcomes-" + std::to_string(getpid()));
    {
        std::ofstream lines(output);
        for (const Booked& booked : everyBooking())
            for (const Dictionary& dictionary : {reservation(booked), confirmation(booked)})
                lines << "{\"event\":\"callback\",\"dictionary\":" << dictionary.dump() << "}\n";
    }
    EXPECT_EQ(std::system((OMBRIVANE_CHECK_CONTRACT " " + output.string()).c_str()), 0);
    std::filesystem::remove(output);
}

TEST_F(StandInTest, NoTwoFieldsAreAlike) {
    for (const Booked& booked : everyBooking()) {
        const Dictionary flat = reservation(booked).flatten();
        std::multiset<std::string> values;
        for (const auto& [path, value] : flat.items())
            if (value != 0 && !path.ends_with("passenger_type") && !value.is_null())
                values.insert(value.dump());
        for (const std::string& value : values)
            EXPECT_EQ(values.count(value), 1U) << value;
        EXPECT_EQ(flat.at("/bookingSummary/passengers/1/passenger_type"), "ADT");
        EXPECT_EQ(flat.contains("/bookingSummary/passengers/4/passenger_id"), booked.infants > 0);
    }
}

TEST_F(StandInTest, ComesAsTheComponentDoes) {
    standIn.paid();
    EXPECT_EQ(heard, std::vector<std::string>{"paid"});
    standIn.reserved({.isRoundTrip = true});
    EXPECT_EQ(kept, 1U) << "it is kept before the callback";
    EXPECT_EQ(heard.back(), "reserved") << "the close is a step of its own";
    world.queue->drain();
    EXPECT_EQ(heard, (std::vector<std::string>{"paid", "reserved", "close"}));
    standIn.failed(ErrorKind::timedOut);
    standIn.paid();
    standIn.drop();
    standIn.closed();
    standIn.reserved();
    world.queue->drain();
    EXPECT_EQ(heard, (std::vector<std::string>{"paid", "reserved", "close", "reserved"})) << "late ones";

    heard.clear();
    StandIn leaving([this](auto dictionary, auto error) { receive(dictionary, error); },
                    [this] { heard.emplace_back("close"); });
    leaving.closed();
    world.queue->drain();
    EXPECT_EQ(heard, std::vector<std::string>{"close"});
}

TEST_F(StandInTest, FailsInEachKindOnItsThread) {
    const std::set<ErrorKind> here{
        ErrorKind::unsupportedSystem, ErrorKind::noConnection, ErrorKind::invalidRequest};
    for (int kind = 0; kind <= static_cast<int>(ErrorKind::unforeseen); ++kind) {
        const auto wanted = static_cast<ErrorKind>(kind);
        heard.clear();
        StandIn failing([this](auto dictionary, auto error) { receive(dictionary, error); },
                        [this] { heard.emplace_back("close"); });
        failing.failed(wanted);
        EXPECT_EQ(onMain, here.count(wanted) == 1) << nameOf(wanted);
        EXPECT_NE(errorOf(wanted).localizedDescription, "") << nameOf(wanted);
        world.queue->drain();
        EXPECT_EQ(heard, (std::vector<std::string>{std::string(nameOf(wanted)), "close"}));
    }
}

TEST_F(StandInTest, TellsTheEventsOfAnOpening) {
    std::vector<std::string> told;
    const auto listening = HostEvents::shared().listen([&told](const Event& event) {
        told.push_back(std::string(nameOf(event.kind)) +
                       (event.error ? " " + std::string(nameOf(*event.error)) : ""));
    });
    StandIn unknown([](const auto&, const auto&) { FAIL() << "nobody knows"; });
    unknown.outcomeUnknown();
    unknown.closed();
    EXPECT_EQ(told, (std::vector<std::string>{"opened", "reservationUnknown timedOut", "closed"}));
}

} // namespace
} // namespace ombrivane::kit
