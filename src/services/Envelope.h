#pragma once

#include "records/JsonAnswer.h"

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ombrivane {

/// The form that every answer has: an object with `success` and, beside it, `data`. A key that the service
/// promises and that is missing or of another type is a `DecodeError` that names it; such an answer is never
/// a success. The templates are instantiated for the records that answers hold.
class Envelope {
public:
    /// @throws DecodeError for bytes that are no JSON object; one inside of a list shows when it is read
    /// @param room what reading may take beyond the bytes
    explicit Envelope(std::string bytes, std::size_t room = limits::structureBytes) :
        answer_(std::move(bytes), "data", room) {}

    bool success() const;
    /// The service's own message of a failure: `data.error`.
    std::string failureMessage() const;

    /// The record that `data` is.
    template <class Record> Record record() const;
    /// The record at `key` of `data`.
    template <class Record> Record record(std::string_view key) const;
    /// The records of the array at `key` of `data`. One that fails, fails all.
    template <class Record> std::vector<Record> records(std::string_view key) const;
    /// The text at `key` of `data`.
    std::string text(std::string_view key) const;

    /// The offers of the array that `data` is, each with its own JSON in `rawData`.
    template <class Offer> std::vector<std::shared_ptr<const Offer>> offers() const;
    /// The offers of the two arrays that the array `data` begins with, without `rawData`.
    template <class Offer> std::array<std::vector<std::shared_ptr<const Offer>>, 2> pairOfOffers() const;

    /// A value beside `success`.
    bool topLevelFlag(std::string_view key) const;
    std::string topLevelText(std::string_view key) const;

    /// Checks what nobody has read: without it, an answer that is no JSON in there would pass.
    /// @throws DecodeError
    void checkUnread() const { answer_.checkUnread(); }

private:
    simdjson::dom::element memberOfData(std::string_view key) const;
    const JsonAnswer::Elements& elements() const;
    template <class Offer, class Each>
    std::vector<std::shared_ptr<const Offer>> decodeOffers(const JsonAnswer::Elements& elements,
                                                           Each each) const;

    JsonAnswer answer_;
};

} // namespace ombrivane
