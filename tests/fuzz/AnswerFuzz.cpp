// Answers of the service: read in pieces they are refused, or mean the same, as when they are parsed as a
// whole.
#include "Require.h"
#include "records/Airport.h"
#include "records/AnyFlight.h"
#include "records/Decode.h"
#include "records/DecodeError.h"
#include "records/FlightAvailability.h"
#include "records/FlightBooking.h"
#include "records/JsonDocument.h"
#include "services/Envelope.h"

#include <simdjson.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace ombrivane;
using simdjson::dom::element;

/// The result, or nothing where the bytes are refused. Any other exception ends the process.
template <class Function> auto unlessRefused(Function function) -> std::optional<decltype(function())> {
    try {
        return function();
    } catch (const DecodeError&) {
        return std::nullopt;
    }
}

/// The answer behind its byte order mark.
std::string_view withoutMark(std::string_view bytes) {
    if (bytes.starts_with("\xef\xbb\xbf")) bytes.remove_prefix(3);
    return bytes;
}

std::string text(const element& json) { return simdjson::minify(json); }

/// Pieces may stand as deep as the whole, so that the whole may be a little deeper.
bool isDeep(const std::string& bytes) {
    return std::count_if(bytes.begin(), bytes.end(), [](char c) { return c == '[' || c == '{'; }) > 1000;
}

/// The members and the elements of the list, as JSON without white space.
std::string readAsWhole(const std::string& bytes) {
    const JsonDocument document(withoutMark(bytes));
    simdjson::dom::object object;
    if (document.root().get(object) != simdjson::SUCCESS) throw DecodeError("", "no object");
    std::string all;
    for (const auto member : object)
        all += text(object.at_key(member.key).value()) + '\n';
    simdjson::dom::array list;
    if (object.at_key("data").get(list) == simdjson::SUCCESS) {
        for (const element item : list)
            all += text(item) + '\n';
    }
    return all;
}

std::string readInPieces(const std::string& bytes, const std::vector<std::string>& keys) {
    const JsonAnswer answer(bytes, "data");
    std::string all;
    for (const std::string& key : keys)
        all += text(answer.value(key)) + '\n';
    if (answer.elements()) {
        for (const auto json : *answer.elements()) {
            all += text(answer.parsed(json)) + '\n';
            const RawData raw = answer.rawData(json);
            require(text(answer.parsed(json)) == text(JsonDocument(raw.minified()).root()),
                    "the raw data of an element is the element");
        }
    }
    return all;
}

std::vector<std::string> keysOf(const std::string& bytes) {
    std::vector<std::string> keys;
    const JsonDocument document(withoutMark(bytes));
    simdjson::dom::object object;
    if (document.root().get(object) != simdjson::SUCCESS) return keys;
    for (const auto member : object)
        keys.emplace_back(member.key);
    return keys;
}

void compareReading(const std::string& bytes) {
    const auto keys = unlessRefused([&] { return keysOf(bytes); });
    const auto whole = unlessRefused([&] { return readAsWhole(bytes); });
    const auto pieces =
        unlessRefused([&] { return readInPieces(bytes, keys.value_or(std::vector<std::string>())); });
    require(whole == pieces, "pieces mean the same as the whole");
}

template <class Offer> void compareOffers(const std::string& bytes) {
    const auto offers = unlessRefused([&] { return Envelope(bytes).offers<Offer>(); });
    auto whole = unlessRefused([&] {
        const JsonDocument document(withoutMark(bytes));
        simdjson::dom::array list;
        if (document.root()["data"].get(list) != simdjson::SUCCESS) throw DecodeError("", "no list");
        std::vector<Offer> records;
        for (const element item : list)
            records.push_back(decode<Offer>(item));
        return records;
    });
    require(offers.has_value() == whole.has_value(), "a list decodes as its elements do");
    if (!offers) return;
    require(offers->size() == whole->size(), "no offer is lost");
    for (std::size_t i = 0; i < whole->size(); ++i) {
        Offer copy = *offers->at(i);
        require(copy.rawData.has_value(), "each offer has its raw data");
        const Offer again = decodeText<Offer>(copy.rawData->bytes());
        Offer& expected = whole->at(i);
        copy.rawData.reset();
        expected.id = copy.id;
        require(copy == expected, "an offer of a list is the record");
        expected.id = again.id;
        require(again == expected, "raw data decodes into the same record");
    }
}

void readAll(const std::string& bytes) {
    const auto envelope = unlessRefused([&] { return std::make_unique<Envelope>(bytes); });
    if (!envelope) return;
    const Envelope& answer = **envelope;
    unlessRefused([&] { return answer.success(); });
    unlessRefused([&] { return answer.failureMessage(); });
    unlessRefused([&] { return answer.topLevelFlag("status"); });
    unlessRefused([&] { return answer.topLevelText("message"); });
    unlessRefused([&] { return answer.text("link"); });
    unlessRefused([&] { return answer.record<OWFlightAvailability>(); });
    unlessRefused([&] { return answer.records<Airport>("airports"); });
    unlessRefused([&] { return answer.record<FlightBooking>("order"); });
    unlessRefused([&] { return answer.pairOfOffers<FlightSearchOneWay>(); });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    if (isDeep(bytes)) return 0;
    compareReading(bytes);
    compareOffers<FlightSearchOneWay>(bytes);
    compareOffers<FlightSearchRoundTrip>(bytes);
    readAll(bytes);
    return 0;
}
