#include "AlteringNetwork.h"
#include "ScreenPath.h"
#include "Wallet.h"
#include "dates/Day.h"

#include <fmt/chrono.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <regex>
#include <set>

namespace ombrivane {
namespace {

/// Makes each value of an answer another one, in its own form: two fields that change places show.
class Distinct {
public:
    Json of(const Json& value, const std::string& key = "") {
        static const std::set<std::string> counted{"numberAdult", "numberChild", "numberInfant"};
        if (key == "allowedDocuments" || counted.contains(key) || value.is_boolean() || value.is_null())
            return value;
        if (value.is_string()) return text(value.get<std::string>());
        if (value.is_number_integer()) return value.get<std::int64_t>() + ++count_;
        if (value.is_number()) return value.get<double>() + ++count_;
        Json result = value;
        for (const auto& [name, element] : value.items()) {
            if (value.is_object()) {
                result[name] = of(element, name);
            } else {
                result[std::stoul(name)] = of(element);
            }
        }
        return result;
    }

private:
    Json text(const std::string& text) {
        static const std::regex day(R"(\d{4}-\d{2}-\d{2})");
        static const std::regex time(R"(\d{2}:\d{2})");
        const int number = ++count_;
        if (std::regex_match(text, day)) return Day::parse("2027-01-01").value().plusDays(number).text();
        if (std::regex_match(text, time))
            return fmt::format("{:02}:{:02}", number * 7 / 60 % 24, number * 7 % 60);
        if (text.starts_with("https://")) return text + "?" + std::to_string(number);
        return text + " " + std::to_string(number);
    }

    int count_ = 0;
};

Json capturedOneWay() { return Json::array({fakes::captured("search-oneway")["data"][0]}); }
Json capturedRound() { return Json::array({fakes::captured("search-round")["data"][0]}); }
Json capturedSpecial() {
    Json lists = fakes::captured("search-special")["data"];
    return Json::array({Json::array({lists[0][0]}), Json::array({lists[1][0]})});
}

class KeptScreensTest : public testing::TestWithParam<std::pair<const char*, Trip>> {
protected:
    KeptScreensTest() {
        Platform ports = platform();
        ports.network = std::make_shared<AlteringNetwork>(
            world.network, [this](const std::string& operation, const std::string& text) {
                if (operation == "get-token") return text;
                Json answer = Json::parse(text);
                answer["data"] = distinct.of(answer["data"]);
                return answer.dump();
            });
        Platform::install(ports);
    }

    /// Keeps the whole stack: all texts, flags and lists by key.
    void look(const std::string& station) { screens[station] = journey::describe(wallet.navigator()); }

    /// Holds what was looked at against what is kept. Kept anew with OMBRIVANE_KEEP=1, to be read before it
    /// is committed.
    void compare(const std::string& road) const {
        // Identities are made afresh for each booking.
        static const std::regex identity("[0-9A-Fa-f]{8}(-[0-9A-Fa-f]{4}){3}-[0-9A-Fa-f]{12}");
        const Json seen = Json::parse(std::regex_replace(screens.dump(), identity, "identity"));
        const std::string name =
            std::string(OMBRIVANE_TEST_DATA) + "/screens/" + GetParam().first + road + ".json";
        if (std::getenv("OMBRIVANE_KEEP") != nullptr) std::ofstream(name) << seen.dump(1) << "\n";
        std::ifstream file(name);
        ASSERT_TRUE(file) << name;
        const Json differences = Json::diff(Json::parse(file), seen);
        EXPECT_EQ(differences.size(), 0U) << differences.dump(1).substr(0, 2000);
    }

    fakes::World world;
    Distinct distinct;
    Wallet wallet{world, GetParam().second, true};
    Json screens;
};

INSTANTIATE_TEST_SUITE_P(
    Trips, KeptScreensTest,
    testing::Values(
        std::pair{"one-way", Trip{"OWBookingDetailsView", "oneWay", capturedOneWay, "availability-oneway"}},
        std::pair{"round-trip",
                  Trip{"RTBookingDetailsView", "roundTrip", capturedRound, "availability-round"}},
        std::pair{"special-round",
                  Trip{"RTBookingDetailsView", "roundTrip", capturedSpecial, "availability-special", true}}),
    [](const auto& row) {
        return std::string(row.param.second.domestic ? "special" : row.param.second.tab);
    });

/// A road with a value of its own in every field, and what each screen of it shows by key.
TEST_P(KeptScreensTest, EveryFieldStandsWhereItBelongs) {
    wallet.toGate();
    look("rules, over the list");
    const std::string list = GetParam().second.domestic ? "DomesticFlightListView" : "FlightListView";
    screens["card"] = wallet.get(list + ".rows[0].journeys");
    wallet.answer();
    wallet.tap("continue");
    look("session that waits");
    wallet.answer();
    screens["passenger"] = wallet.get("contact.rows[0].title");
    wallet.tap("information.viewDetails");
    look("flight details");
    wallet.tap("close");
    wallet.fillContact();
    wallet.fillTraveller();
    wallet.tap("continue");
    wallet.answer();
    wallet.answer();
    ASSERT_EQ(wallet.handedOver.size(), 1U);
    screens["hand-over"] = wallet.handedOver.front();
    compare("");
}

TEST_P(KeptScreensTest, EveryFieldOfATicketStandsWhereItBelongs) {
    wallet.toReady();
    wallet.set(std::string(GetParam().second.session) + ".showPaymentView", true);
    wallet.answer();
    wallet.tap("payment.button");
    wallet.answer();
    wallet.answer();
    look("ticket");
    compare("-ticket");
}

} // namespace
} // namespace ombrivane
