#pragma once

#include "base/Boxed.h"
#include "records/Wire.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <variant>
#include <vector>

namespace ombrivane::detail {

inline void mix(std::size_t& seed, std::size_t value) {
    seed ^= value + 0x9e3779b97f4a7c15ULL + (seed << 6) + (seed >> 2);
}

// Declared ahead, since an optional holds an array and an array holds optionals.
template <class T> std::size_t hashOf(const T& value);
template <class T> std::size_t hashOf(const std::optional<T>& value);
template <class T> std::size_t hashOf(const Boxed<T>& value);
template <class T> std::size_t hashOf(const std::vector<T>& values);

template <class T> std::size_t hashOf(const T& value) { return std::hash<T>{}(value); }

template <class T> std::size_t hashOf(const std::optional<T>& value) {
    return value ? hashOf(*value) + 1 : 0;
}

template <class T> std::size_t hashOf(const Boxed<T>& value) { return value ? hashOf(*value) + 1 : 0; }

template <class T> std::size_t hashOf(const std::vector<T>& values) {
    std::size_t seed = values.size();
    for (const auto& value : values)
        mix(seed, hashOf(value));
    return seed;
}

} // namespace ombrivane::detail

template <ombrivane::TaggedScalar T> struct std::hash<T> {
    std::size_t operator()(const T& value) const { return std::hash<typename T::Payload>{}(value.payload); }
};

/// Over every field of the table, and over a record's own identity where it has one outside of it.
template <ombrivane::WireRecord T> struct std::hash<T> {
    std::size_t operator()(const T& record) const {
        std::size_t seed = 0;
        ombrivane::forEachField(record, [&seed](std::string_view, const auto& value) {
            ombrivane::detail::mix(seed, ombrivane::detail::hashOf(value));
        });
        if constexpr (requires { T::hasLocalIdentity; }) {
            ombrivane::detail::mix(seed, ombrivane::detail::hashOf(record.id));
            ombrivane::detail::mix(seed, ombrivane::detail::hashOf(record.rawData));
        }
        return seed;
    }
};
