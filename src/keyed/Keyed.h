#pragma once

#include "base/Date.h"
#include "base/Json.h"
#include "base/Uuid.h"
#include "keyed/Fields.h"

#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

namespace ombrivane {

/// How a value is read and written by its key: `Keyed<T>::toJson` and `Keyed<T>::fromJson`, the latter
/// throwing `KeyedError` when the JSON has another form. Types of the system specialise it beside their
/// definition.
template <class T> struct Keyed;

template <> struct Keyed<bool> {
    static Json toJson(bool value) { return value; }
    static bool fromJson(const Json& json) {
        if (!json.is_boolean()) throw KeyedError("wants true or false");
        return json.get<bool>();
    }
};

template <class T>
requires(std::is_integral_v<T> && !std::is_same_v<T, bool>) struct Keyed<T> {
    static Json toJson(T value) { return value; }
    static T fromJson(const Json& json) {
        if (!json.is_number_integer()) throw KeyedError("wants a whole number");
        return json.get<T>();
    }
};

template <> struct Keyed<double> {
    static Json toJson(double value) { return value; }
    static double fromJson(const Json& json) {
        if (!json.is_number()) throw KeyedError("wants a number");
        return json.get<double>();
    }
};

template <> struct Keyed<std::string> {
    static Json toJson(const std::string& value) { return value; }
    static std::string fromJson(const Json& json) {
        if (!json.is_string()) throw KeyedError("wants a text");
        return json.get<std::string>();
    }
};

template <> struct Keyed<Uuid> {
    static Json toJson(const Uuid& value) { return value.text(); }
    static Uuid fromJson(const Json& json) {
        const auto uuid = json.is_string() ? Uuid::parse(json.get<std::string>()) : std::nullopt;
        if (!uuid) throw KeyedError("wants the text of a UUID");
        return *uuid;
    }
};

/// "2026-11-21T09:30:00Z"; read as well without a time, which then is midnight UTC.
template <> struct Keyed<Date> {
    static Json toJson(Date value) { return isoText(value); }
    static Date fromJson(const Json& json) {
        const auto date = json.is_string() ? parseIso(json.get<std::string>()) : std::nullopt;
        if (!date) throw KeyedError("wants a date such as \"2026-11-21T09:30:00Z\"");
        return *date;
    }
};

template <class T> struct Keyed<std::optional<T>> {
    static Json toJson(const std::optional<T>& value) { return value ? Keyed<T>::toJson(*value) : Json(); }
    static std::optional<T> fromJson(const Json& json) {
        if (json.is_null()) return std::nullopt;
        return Keyed<T>::fromJson(json);
    }
};

template <class T> struct Keyed<std::vector<T>> {
    static Json toJson(const std::vector<T>& values) {
        Json array = Json::array();
        for (const auto& value : values)
            array.push_back(Keyed<T>::toJson(value));
        return array;
    }
    static std::vector<T> fromJson(const Json& json) {
        if (!json.is_array()) throw KeyedError("wants an array");
        std::vector<T> values;
        for (const auto& element : json)
            values.push_back(Keyed<T>::fromJson(element));
        return values;
    }
};

} // namespace ombrivane
