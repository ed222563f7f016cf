#pragma once

#include "base/Completion.h"
#include "records/Decode.h"
#include "records/Encode.h"
#include "services/FlightSearchRoundTripProvider.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// What a completion was told.
struct Outcome {
    int completions = 0;
    Json result; ///< null, or an empty list, text or pair of lists, when there is none
    std::optional<Error> error;
    /// Goes with it: an answer that comes after the test is not written down.
    std::shared_ptr<const bool> here = std::make_shared<const bool>(true);
};

inline Json shown(const std::string& text) { return text; }
template <WireRecord Record> Json shown(const Record& record) { return encode(record); }
template <class T> Json shown(const std::optional<T>& value) { return value ? shown(*value) : Json(); }
/// An offer, after a look at whether its own JSON holds the same.
template <class T> Json shown(const std::shared_ptr<const T>& offer) {
    if (offer->rawData) {
        T again = decodeText<T>(offer->rawData->bytes());
        again.id = offer->id;
        again.rawData = offer->rawData;
        EXPECT_TRUE(again == *offer) << offer->rawData->bytes();
    }
    return encode(*offer);
}
template <class T> Json shown(const std::vector<T>& values) {
    Json array = Json::array();
    for (const auto& value : values)
        array.push_back(shown(value));
    return array;
}
inline Json shown(const FlightSearchRoundTripProvider::SpecialRoundFlights& flights) {
    return {{"departureFlights", shown(flights.departureFlights)},
            {"returnFlights", shown(flights.returnFlights)}};
}

/// A completion that writes down what it is told.
template <class Result> Completion<Result> into(Outcome& outcome) {
    return [&outcome, here = std::weak_ptr(outcome.here)](const Result& result, std::optional<Error> error) {
        if (here.expired()) return;
        ++outcome.completions;
        outcome.result = shown(result);
        outcome.error = std::move(error);
    };
}

} // namespace ombrivane
