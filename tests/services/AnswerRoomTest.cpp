#include "services/AirportSearchProvider.h"
#include "services/AuthenticationProvider.h"
#include "services/ClientCall.h"
#include "services/FlightSearchOneWayProvider.h"
#include "services/FlightSearchRoundTripProvider.h"
#include "services/HeapMeter.h"
#include "services/ServiceFixture.h"

#include "platform/Limits.h"

#include <functional>
#include <utility>

namespace ombrivane {
namespace {

constexpr std::size_t answerSize = 31 * limits::mebibyte;

/// Answers that ask for much memory, and memory that is not there.
class AnswerRoomTest : public ServiceFixture {
protected:
    static ClientCall callNamed(const std::string& name) {
        for (ClientCall& call : clientCalls()) {
            if (call.name == name) return std::move(call);
        }
        throw std::logic_error("no call " + name);
    }

    /// What the completion heard, and the most memory that reading took beyond the answer's own bytes.
    std::pair<Outcome, std::size_t> read(const ClientCall& call, std::string bytes) {
        Outcome outcome;
        call.start(outcome);
        const HeapMeter meter;
        world.network->answer(std::move(bytes));
        return {outcome, meter.peak()};
    }
};

/// `piece` again and again, as long as an answer may be.
std::string repeated(const std::string& head, const std::string& piece, const std::string& tail) {
    std::string bytes = head;
    bytes.reserve(answerSize);
    while (bytes.size() + piece.size() + tail.size() < answerSize)
        bytes += piece;
    return bytes + tail;
}

TEST_F(AnswerRoomTest, ALongListIsAnErrorThatNamesIt) {
    const struct {
        const char* call;
        std::string answer;
        const char* error;
    } rows[] = {
        {"search_oneway", R"({"success":true,"data":[)", "data: more than 10000 elements"},
        {"search_round", R"({"success":true,"data":[)", "data: more than 10000 elements"},
        {"search_special", R"({"success":true,"data":[[],[)", "data[1]: more than 10000 elements"},
        {"airports", R"({"success":true,"data":{"airports":[)", "data.airports: more than 10000 elements"},
        {"countries", R"({"success":true,"data":{"countries":[)", "data.countries: more than 10000 elements"},
        {"ticket", R"({"success":true,"data":[)", "data: more than 10000 elements"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.call);
        std::string bytes = row.answer;
        for (int i = 0; i < 10'001; ++i)
            bytes += i == 0 ? "{}" : ",{}";
        for (std::size_t open = std::string(row.answer).size(); open-- > 0;) {
            if (row.answer[open] == '[' && row.answer[open + 1] != ']') bytes += ']';
            if (row.answer[open] == '{') bytes += '}';
        }
        const auto [outcome, peak] = read(callNamed(row.call), std::move(bytes));
        ASSERT_TRUE(outcome.error);
        EXPECT_EQ(outcome.error->localizedDescription, "The service's answer could not be understood.");
        EXPECT_EQ(outcome.error->developerDescription, row.error);
        EXPECT_LT(peak, 4 * limits::mebibyte);
    }
}

TEST_F(AnswerRoomTest, HostileShapesStayWithinBounds) {
    const std::string list = R"({"success":true,"data":[)";
    const std::string object = R"({"success":true,"data":{)";
    // Each of three bytes is a record of a kilobyte.
    Json offer = fakes::captured("search-round").at("data").at(0);
    offer["flight_departure_summary"]["fares"]["ADT"] = Json::array();
    std::string dense = offer.dump();
    const std::size_t fares = dense.find("\"ADT\":[]") + 7;
    ASSERT_LT(fares, dense.size());
    for (int i = 0; i < 5000; ++i)
        dense.insert(fares, i == 0 ? "{}" : "{},");
    const std::string answers[] = {
        repeated(list, "{},", "{}]}"),
        repeated(list, "[", ""),
        repeated(list, "\"\",", "\"\"]}"),
        repeated(list, "1,", "1]}"),
        repeated(list + "[", "1,", "1]]}"),
        repeated(list + "{\"a\":[", "{},", "{}]}]}"),
        repeated(list + "[", "1e400,", "1]]}"),
        repeated(list + "\"", "x", "\"]}"),
        repeated(list + "\"", "\\\"", "\"]}"),
        repeated(list + "1", "1", "]}"),
        repeated(list, "{\"a\":", ""),
        repeated(list, "{\"a\":[],\"b\":\"\"},", "{}]}"),
        repeated(list, dense + ",", dense + "]}"),
        repeated(object + "\"airports\":[", "{},", "{}]}}"),
        repeated(object + "\"flight_summary\":{\"segments\":[", "{},", "{}]}}}"),
        repeated(object, "\"a\":1,", "\"b\":2}}"),
        repeated("{", "\"\":1,", "\"success\":true}"),
        repeated("{\"", "x", "\":true}"),
        repeated("", " ", ""),
        repeated(list, " ", "]}"),
        repeated("", "[", ""),
        repeated("", "\"", ""),
    };
    const ClientCall calls[] = {callNamed("search_round"), callNamed("search_special")};
    for (const std::string& answer : answers) {
        for (const ClientCall& call : calls) {
            SCOPED_TRACE(call.name + " " + answer.substr(0, 60));
            const auto [outcome, peak] = read(call, answer);
            EXPECT_EQ(outcome.completions, 1);
            EXPECT_LT(peak, limits::searchStructureBytes / 8 * 9);
        }
    }
}

TEST_F(AnswerRoomTest, TenThousandOffersWithEveryAttributeAreRead) {
    std::size_t found = 0;
    const auto count = [&found](const auto& offers, const std::optional<Error>& error) {
        EXPECT_FALSE(error) << error->developerDescription;
        found = offers.size();
    };
    FlightQuery query;
    query.departDate = Day::parse("2026-04-10").value();
    query.adults = query.children = query.infants = "1";
    const std::pair<const char*, std::function<void()>> rows[] = {
        {"search-oneway", [&] { FlightSearchOneWayProvider().searchFlights(query, count); }},
        {"search-round", [&] { FlightSearchRoundTripProvider().searchFlights(query, count); }},
    };
    for (const auto& [file, start] : rows) {
        SCOPED_TRACE(file);
        const std::string offer = fakes::captured(file).at("data").at(0).dump();
        std::string bytes = R"({"success":true,"data":[)" + offer;
        for (int i = 1; i < 10'000; ++i)
            bytes.append(",").append(offer);
        bytes += "]}";
        EXPECT_LT(bytes.size() / 5 * 6, limits::searchBytes);
        start();
        const HeapMeter meter;
        world.network->answer(std::move(bytes));
        EXPECT_EQ(found, 10'000U);
        EXPECT_LT(meter.peak() / 5 * 6, limits::searchStructureBytes);
    }
}

/// Each allocation of a short reading fails once, of a longer one the first and then some.
TEST_F(AnswerRoomTest, MemoryThatIsNotThereIsTheCompletionsError) {
    std::size_t answered = 0;
    std::size_t failures = 0;
    const auto hear = [&](const auto& /*result*/, const std::optional<Error>& error) {
        ++answered;
        if (error) ++failures;
    };
    FlightQuery query;
    query.departDate = Day::parse("2026-04-10").value();
    query.adults = query.children = query.infants = "1";
    const std::pair<const char*, std::function<void()>> rows[] = {
        {"token", [&] { AuthenticationProvider().authenticate("a", "b", std::nullopt, hear); }},
        {"airports", [&] { AirportSearchProvider().searchAirports("a", hear); }},
        {"search-oneway", [&] { FlightSearchOneWayProvider().searchFlights(query, hear); }},
        {"search-special", [&] { FlightSearchRoundTripProvider().searchSpecialRoundFlights(query, hear); }},
    };
    for (const auto& [file, start] : rows) {
        const std::string bytes = fakes::captured(file).dump();
        bool refused = true;
        std::size_t runs = 0;
        answered = failures = 0;
        for (std::size_t allocation = 0; refused; allocation += 1 + allocation / 50) {
            start();
            std::string answer = bytes;
            const HeapMeter meter(allocation);
            world.network->answer(std::move(answer));
            refused = meter.hasRefused();
            ASSERT_EQ(answered, ++runs) << file << " " << allocation;
        }
        EXPECT_GT(runs, 10U) << file;
        EXPECT_EQ(failures, runs - 1) << file << ": the last reading had all its memory";
    }
}

} // namespace
} // namespace ombrivane
