#pragma once

#include "keyed/Keyed.h"

#include <string_view>
#include <tuple>

namespace ombrivane {

/// One row of a shown value's table: which key reads which field.
template <class Value, class T> struct ShownField {
    std::string_view key;
    T Value::*member;
};

template <class Value, class T> constexpr ShownField<Value, T> entry(std::string_view key, T Value::*member) {
    return {key, member};
}

/// The table of a value that screens show and nobody sets: all of its fields, in the order in which they are
/// read.
template <class... Rows> constexpr std::tuple<Rows...> table(Rows... rows) { return {rows...}; }

/// A value with such a table.
template <class T>
concept ShownValue = requires {
    T::shown;
};

template <ShownValue T> struct Keyed<T> {
    static Json toJson(const T& value) {
        Json object = Json::object();
        std::apply([&](const auto&... row) { (add(object, row.key, value.*(row.member)), ...); }, T::shown);
        return object;
    }

private:
    template <class Field> static void add(Json& object, std::string_view key, const Field& field) {
        object[std::string(key)] = Keyed<Field>::toJson(field);
    }
};

} // namespace ombrivane
