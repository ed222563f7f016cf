#pragma once

#include "records/DecodeRoom.h"
#include "records/RawData.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace simdjson::dom {
class element;
}

namespace ombrivane {

/// An answer of the service: one object, of which one member may be a long list. The elements of the list are
/// parsed one by one when they are read, so that the list never stands in memory as a tree: most of the time
/// that a whole tree costs goes into memory that is touched once, and a hostile one takes fifteen times its
/// bytes.
class JsonAnswer {
public:
    using Elements = std::vector<std::string_view>;

    /// Notes where each value stands and checks all but the elements of the list. A byte order mark is passed
    /// over.
    /// @param listKey the member whose elements are left to their reader
    /// @param room what reading may take beyond the bytes
    /// @throws DecodeError when the bytes are no JSON object (UTF-8)
    JsonAnswer(std::string bytes, std::string_view listKey, std::size_t room = limits::structureBytes);
    ~JsonAnswer();
    JsonAnswer(const JsonAnswer&) = delete;
    JsonAnswer& operator=(const JsonAnswer&) = delete;

    /// The value of a member, good until the next value or element is asked for. Of two members with one key
    /// it is the first. @throws DecodeError when there is none
    simdjson::dom::element value(std::string_view key) const;

    /// The JSON of each element of the list as it came, or nothing where the member is no array.
    const std::optional<Elements>& elements() const;

    /// The JSON of each element of an element of the list. @throws DecodeError when it is no array
    Elements elementsOf(std::string_view element) const;

    /// The element, good until the next value or element is asked for. @throws DecodeError when it is no JSON
    simdjson::dom::element parsed(std::string_view element) const;

    /// The element as it stands in the answer, whose bytes the offers of a list share.
    RawData rawData(std::string_view element) const;

    /// Checks the elements of the list when nobody asked for them. @throws DecodeError
    void checkUnread() const;

    /// Pays for the records that are made of the answer.
    DecodeRoom& room() const;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace ombrivane
