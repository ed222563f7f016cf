#include "services/Envelope.h"

#include "records/Airport.h"
#include "records/AnyFlight.h"
#include "records/Authentication.h"
#include "records/Country.h"
#include "records/Decode.h"
#include "records/DecodeError.h"
#include "records/FlightAvailability.h"
#include "records/FlightBooking.h"
#include "records/FlightTicketing.h"
#include "records/PaymentSummary.h"

#include <simdjson.h>

namespace ombrivane {
namespace {

using simdjson::dom::element;

[[noreturn]] void breach(std::string_view key, const char* reason) {
    DecodeError error(notUnderstood, reason);
    error.within(key);
    throw error;
}

element at(const element& object, std::string_view key) {
    element value;
    if (!object.is_object()) throw DecodeError(notUnderstood, "wants an object");
    if (object.at_key(key).get(value) != simdjson::SUCCESS) breach(key, "is missing");
    return value;
}

bool flagAt(const element& object, std::string_view key) {
    bool flag = false;
    if (at(object, key).get(flag) != simdjson::SUCCESS) breach(key, "wants true or false");
    return flag;
}

std::string textAt(const element& object, std::string_view key) {
    std::string_view text;
    if (at(object, key).get(text) != simdjson::SUCCESS) breach(key, "wants a text");
    return std::string(text);
}

/// A failure inside of `function` names `key` as well.
template <class Key, class Function> auto within(Key key, Function function) {
    try {
        return function();
    } catch (DecodeError& error) {
        error.within(key);
        throw;
    }
}

element dataOf(const element& root) { return at(root, "data"); }

element named(const element& root, std::string_view key) {
    return within(std::string_view("data"), [&] { return at(dataOf(root), key); });
}

simdjson::dom::array arrayOf(const element& value) {
    simdjson::dom::array array;
    if (value.get(array) != simdjson::SUCCESS) throw DecodeError(notUnderstood, "wants an array");
    return array;
}

/// Decodes each element by itself and hands it to `take` with its position.
template <class Record, class Take> void decodeEach(const element& value, Take take) {
    std::size_t index = 0;
    for (const element item : arrayOf(value)) {
        take(within(index, [&] { return decode<Record>(item); }), index);
        ++index;
    }
}

} // namespace

bool Envelope::success() const { return flagAt(document_.root(), "success"); }

std::string Envelope::failureMessage() const {
    const element data = dataOf(document_.root());
    return within(std::string_view("data"), [&] { return textAt(data, "error"); });
}

template <class Record> Record Envelope::record() const {
    const element data = dataOf(document_.root());
    return within(std::string_view("data"), [&] { return decode<Record>(data); });
}

template <class Record> Record Envelope::record(std::string_view key) const {
    const element value = named(document_.root(), key);
    return within("data." + std::string(key), [&] { return decode<Record>(value); });
}

template <class Record> std::vector<Record> Envelope::records(std::string_view key) const {
    const element value = named(document_.root(), key);
    std::vector<Record> records;
    within("data." + std::string(key), [&] {
        decodeEach<Record>(value, [&](Record record, std::size_t) { records.push_back(std::move(record)); });
    });
    return records;
}

std::string Envelope::text(std::string_view key) const {
    const element data = dataOf(document_.root());
    return within(std::string_view("data"), [&] { return textAt(data, key); });
}

template <class Offer> std::vector<std::shared_ptr<const Offer>> Envelope::offers() const {
    const element data = dataOf(document_.root());
    const auto bytes = document_.elementBytes("data");
    std::vector<std::shared_ptr<const Offer>> offers;
    offers.reserve(bytes.size());
    within(std::string_view("data"), [&] {
        decodeEach<Offer>(data, [&](Offer decoded, std::size_t index) {
            auto offer = std::make_shared<Offer>(std::move(decoded));
            offer->rawData = RawData(document_.owner(), bytes.at(index));
            offers.push_back(std::move(offer));
        });
    });
    return offers;
}

template <class Offer> std::vector<std::shared_ptr<const Offer>> Envelope::offersAt(std::size_t index) const {
    const element data = dataOf(document_.root());
    std::vector<std::shared_ptr<const Offer>> offers;
    within(std::string_view("data"), [&] {
        element list;
        if (arrayOf(data).at(index).get(list) != simdjson::SUCCESS) {
            throw DecodeError(notUnderstood, "lacks its list " + std::to_string(index));
        }
        within(index, [&] {
            decodeEach<Offer>(list, [&](Offer offer, std::size_t) {
                offers.push_back(std::make_shared<const Offer>(std::move(offer)));
            });
        });
    });
    return offers;
}

bool Envelope::topLevelFlag(std::string_view key) const { return flagAt(document_.root(), key); }

std::string Envelope::topLevelText(std::string_view key) const { return textAt(document_.root(), key); }

template Authentication Envelope::record() const;
template OWFlightAvailability Envelope::record() const;
template RTFlightAvailability Envelope::record() const;
template FlightTicketing Envelope::record() const;
template FlightBooking Envelope::record(std::string_view) const;
template BookingSummary Envelope::record(std::string_view) const;
template PaymentSummary Envelope::record(std::string_view) const;
template std::vector<Country> Envelope::records(std::string_view) const;
template std::vector<Airport> Envelope::records(std::string_view) const;
template OneWayOffers Envelope::offers() const;
template RoundTripOffers Envelope::offers() const;
template OneWayOffers Envelope::offersAt(std::size_t) const;

} // namespace ombrivane
