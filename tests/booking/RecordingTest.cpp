#include "Wallet.h"
#include "recording/Pseudonym.h"

#include <fmt/ranges.h>
#include <gtest/gtest.h>

#include <regex>
#include <sstream>

namespace ombrivane {
namespace {

bool has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

TEST(RecordingTest, WhatIsTypedKeepsItsShapeAndNothingElse) {
    constexpr std::uint64_t salt = 7;
    for (const auto& [text, shape] :
         {std::pair("Asha", "[A-Z][a-z]{3}"),
          std::pair("asha.lama@example.com", "[a-z]{4}\\.[a-z]{4}@[a-z]{7}\\.[a-z]{3}"),
          std::pair("+977 9801234567", "\\+[1-9]{3} [1-9]{10}"),
          std::pair("01 5550100", "0[1-9] [1-9]{7}"),
          std::pair("PA1234567", "[A-Z]{2}[1-9]{7}"),
          std::pair("José", "[A-Z][a-z]{2}\xc3\xa8"),
          std::pair("", "")}) {
        const std::string other = pseudonym(text, salt);
        EXPECT_TRUE(std::regex_match(other, std::regex(shape))) << text << " became " << other;
        EXPECT_EQ(other, pseudonym(text, salt));
        for (std::size_t at = 0; at < other.size(); ++at)
            EXPECT_TRUE(other[at] != text[at] || !std::isalnum(static_cast<unsigned char>(text[at])) ||
                        (text[at] == '0' && at == 0))
                << text << " became " << other;
    }
    const std::string nepali = pseudonym("आशा", salt);
    EXPECT_EQ(nepali.size(), std::string("आशा").size());
    EXPECT_NE(nepali, "आशा");
    EXPECT_NE(pseudonym("Asha Lama", 1), pseudonym("Asha Lama", 2)) << "nobody can look it up";
    EXPECT_EQ(otherDay("1990-05-17", salt), "1990-05-01");
    EXPECT_EQ(otherDay("1990-05-01", salt), "1990-05-02");
}

/// The recorded lines that do or expect something, without how long it took.
std::vector<std::string> commandsOf(const std::string& recording) {
    std::vector<std::string> commands;
    std::istringstream lines(recording);
    for (std::string line; std::getline(lines, line);)
        if (!line.starts_with("# ") && !line.starts_with("wait ") && !line.starts_with("restore "))
            commands.push_back(line);
    return commands;
}

TEST(RecordingTest, AnOpeningBecomesAJourney) {
    fakes::World world;
    Wallet wallet(world, oneWayTrip, true);
    wallet.toSession();
    wallet.tap("contact.rows[0].tap");
    wallet.tap("typeName", "Asha");
    wallet.tap("typeEmail", "asha@example.com");
    wallet.tap("pickDateOfBirth", "1990-05-17");
    wallet.tap("openPhotoPicker");
    wallet.pick();
    world.pass(std::chrono::seconds(61));
    wallet.navigator().back();
    wallet.fillContact();
    wallet.fillTraveller();
    wallet.tap("continue");
    wallet.fail();
    const std::string text = wallet.recording();
    for (const char* secret : {"Asha", "asha@", "1990-05-17"})
        EXPECT_FALSE(has(text, secret)) << text;
    const auto commands = commandsOf(text);
    for (const char* part : {"wait-screen MainView\n",
                             "tap OneWayView.search\nwait-screen FlightListView\n",
                             "tap OneWayFlightListView.rows[0].tap\ntap FlightListView.continue\n",
                             "tap OWPessangerContactDetailView.rows[0].tap\n",
                             "tap TravellerInformationView.pickDateOfBirth \"1990-05-01\"\n"
                             "pick\n"
                             "tap TravellerInformationView.openPhotoPicker\n",
                             "advance 61\nback\n",
                             "tap OWBookingDetailsView.continue\n"})
        EXPECT_TRUE(has(fmt::format("{}\n", fmt::join(commands, "\n")), part)) << part << text;
    EXPECT_TRUE(has(text, "#: sandbox --offers 1\n")) << text;
    EXPECT_TRUE(has(text, "#: sandbox --fault \"/reservation silence times=1 after=0\"\n")) << text;

    Wallet another(world);
    another.show();
    another.fail(world.network->outstanding() - 1);
    EXPECT_EQ(wallet.recording(), text) << "what another opening meets is no part of it";
}

} // namespace
} // namespace ombrivane
