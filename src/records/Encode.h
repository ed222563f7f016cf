#pragma once

#include "base/Boxed.h"
#include "base/Json.h"
#include "base/Uuid.h"
#include "records/Wire.h"

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace ombrivane {

template <class T> struct Encoder {
    static Json encode(const T& value) { return value; }
};

template <> struct Encoder<double> {
    /// A whole number is written as it arrived, without a fraction.
    static Json encode(double value) {
        constexpr double bound = 9007199254740992.0; // 2^53
        if (std::abs(value) < bound && std::trunc(value) == value) return static_cast<std::int64_t>(value);
        return value;
    }
};

template <> struct Encoder<Uuid> {
    static Json encode(const Uuid& value) { return value.text(); }
};

template <TaggedScalar T> struct Encoder<T> {
    static Json encode(const T& value) {
        return std::visit([](const auto& payload) { return Json(payload); }, value.payload);
    }
};

template <class T> struct Encoder<std::vector<T>> {
    static Json encode(const std::vector<T>& values) {
        Json array = Json::array();
        for (const auto& value : values)
            array.push_back(Encoder<T>::encode(value));
        return array;
    }
};

template <WireRecord T> struct Encoder<T> {
    static Json encode(const T& record) {
        Json object = Json::object();
        forEachField(record, [&object]<class Value>(std::string_view key, const Value& value) {
            add(object, key, value);
        });
        return object;
    }

private:
    template <class Value> static void add(Json& object, std::string_view key, const Value& value) {
        object[std::string(key)] = Encoder<Value>::encode(value);
    }
    template <class Value>
    static void add(Json& object, std::string_view key, const std::optional<Value>& value) {
        if (value) add(object, key, *value);
    }
    template <class Value> static void add(Json& object, std::string_view key, const Boxed<Value>& value) {
        if (value) add(object, key, *value);
    }
};

/// The record as a JSON object, its keys in the order of the table, absent fields left out.
template <WireRecord Record> Json encode(const Record& record) { return Encoder<Record>::encode(record); }

} // namespace ombrivane
