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

#include <algorithm>
#include <deque>

namespace ombrivane {
namespace {

using simdjson::dom::element;

[[noreturn]] void breach(std::string_view key, const char* reason) {
    DecodeError error(reason);
    error.within(key);
    throw error;
}

element at(const element& object, std::string_view key) {
    element value;
    if (!object.is_object()) throw DecodeError("wants an object");
    if (object.at_key(key).get(value) != simdjson::SUCCESS) breach(key, "is missing");
    return value;
}

std::string textOf(const element& value, std::string_view key) {
    std::string_view text;
    if (value.get(text) != simdjson::SUCCESS) breach(key, "wants a text");
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

simdjson::dom::array arrayOf(const element& value) {
    simdjson::dom::array array;
    if (value.get(array) != simdjson::SUCCESS) throw DecodeError("wants an array");
    return array;
}

template <class Record> Record decoded(const element& value, DecodeRoom& room) {
    Record record;
    decode(value, record, room);
    return record;
}

/// Decodes each element by itself into a place of its own.
template <class Record> std::vector<Record> decodeEach(const element& value, DecodeRoom& room) {
    const simdjson::dom::array array = arrayOf(value);
    room.takeList(array.size(), sizeof(Record));
    std::vector<Record> records;
    for (const element item : array)
        within(records.size(), [&] { decode(item, records.emplace_back(), room); });
    return records;
}

/// Pointers to the records of one list, which lives as long as any of them is held, by one count for all,
/// which stays in the cache while a list of pointers is copied.
template <class Record> std::vector<std::shared_ptr<const Record>> shared(std::deque<Record> records) {
    const auto list = std::make_shared<const std::deque<Record>>(std::move(records));
    std::vector<std::shared_ptr<const Record>> pointers;
    pointers.reserve(list->size());
    for (const Record& record : *list)
        pointers.emplace_back(list, &record);
    return pointers;
}

} // namespace

bool Envelope::success() const { return topLevelFlag("success"); }

std::string Envelope::failureMessage() const {
    const element data = answer_.value("data");
    return within(std::string_view("data"), [&] { return textOf(at(data, "error"), "error"); });
}

template <class Record> Record Envelope::record() const {
    const element data = answer_.value("data");
    return within(std::string_view("data"), [&] { return decoded<Record>(data, answer_.room()); });
}

element Envelope::memberOfData(std::string_view key) const {
    const element data = answer_.value("data");
    return within(std::string_view("data"), [&] { return at(data, key); });
}

template <class Record> Record Envelope::record(std::string_view key) const {
    const element value = memberOfData(key);
    return within("data." + std::string(key), [&] { return decoded<Record>(value, answer_.room()); });
}

template <class Record> std::vector<Record> Envelope::records(std::string_view key) const {
    const element value = memberOfData(key);
    return within("data." + std::string(key), [&] { return decodeEach<Record>(value, answer_.room()); });
}

std::string Envelope::text(std::string_view key) const {
    const element data = answer_.value("data");
    return within(std::string_view("data"), [&] { return textOf(at(data, key), key); });
}

template <class Offer, class Each>
std::vector<std::shared_ptr<const Offer>> Envelope::decodeOffers(const JsonAnswer::Elements& elements,
                                                                 Each each) const {
    std::deque<Offer> offers; // grows with what has been decoded, and moves none of it
    for (const std::string_view json : elements) {
        within(offers.size(), [&] {
            answer_.room().take(sizeof(Offer));
            Offer& offer = offers.emplace_back();
            decode(answer_.parsed(json), offer, answer_.room());
            each(offer, json);
        });
    }
    return shared(std::move(offers));
}

const JsonAnswer::Elements& Envelope::elements() const {
    const auto& elements = answer_.elements();
    if (!elements) {
        answer_.value("data"); // which may be missing
        breach("data", "wants an array");
    }
    return *elements;
}

template <class Offer> std::vector<std::shared_ptr<const Offer>> Envelope::offers() const {
    const auto& list = elements();
    return within(std::string_view("data"), [&] {
        return decodeOffers<Offer>(
            list, [this](Offer& offer, std::string_view json) { offer.rawData = answer_.rawData(json); });
    });
}

template <class Offer>
std::array<std::vector<std::shared_ptr<const Offer>>, 2> Envelope::pairOfOffers() const {
    const auto& lists = elements();
    return within(std::string_view("data"), [&] {
        std::array<std::vector<std::shared_ptr<const Offer>>, 2> pair;
        for (std::size_t index = 0; index < std::max(lists.size(), pair.size()); ++index) {
            if (index >= lists.size()) {
                throw DecodeError("lacks its list " + std::to_string(index));
            }
            within(index, [&] {
                if (index < pair.size()) {
                    pair.at(index) = decodeOffers<Offer>(answer_.elementsOf(lists[index]),
                                                         [](Offer& /*offer*/, std::string_view /*json*/) {});
                } else {
                    // Nobody reads it, but it is part of the answer.
                    for (const auto json : answer_.elementsOf(lists[index]))
                        if (!answer_.parsed(json).is_object()) throw DecodeError("wants objects");
                }
            });
        }
        return pair;
    });
}

bool Envelope::topLevelFlag(std::string_view key) const {
    bool flag = false;
    if (answer_.value(key).get(flag) != simdjson::SUCCESS) breach(key, "wants true or false");
    return flag;
}

std::string Envelope::topLevelText(std::string_view key) const { return textOf(answer_.value(key), key); }

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
template std::array<OneWayOffers, 2> Envelope::pairOfOffers() const;

} // namespace ombrivane
