#pragma once

#include <concepts>
#include <string_view>
#include <tuple>
#include <type_traits>

namespace ombrivane {

/// One row of a record's table: which key holds which field.
template <class Record, class Value> struct WireField {
    std::string_view key;
    Value Record::*member;
};

template <class Record, class Value>
constexpr WireField<Record, Value> field(std::string_view key, Value Record::*member) {
    return {key, member};
}

/// A record's table, in the order in which its keys are processed. Decoding, encoding and hashing come from
/// it alone; an optional field may be missing and is left out when it is absent.
template <class... Rows> constexpr std::tuple<Rows...> fields(Rows... rows) { return {rows...}; }

/// A record with a table.
template <class T>
concept WireRecord = requires {
    T::wire;
};

/// A value that takes one JSON scalar of either of two types and keeps it.
template <class T>
concept TaggedScalar = requires {
    typename T::Payload;
    { T::wrongType } -> std::convertible_to<std::string_view>;
};

/// Calls `visit(key, record.field)` for each field of the table.
template <WireRecord Record, class Visit> void forEachField(Record& record, Visit visit) {
    std::apply([&](const auto&... row) { (visit(row.key, record.*(row.member)), ...); },
               std::remove_const_t<Record>::wire);
}

} // namespace ombrivane
