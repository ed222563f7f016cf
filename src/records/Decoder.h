#pragma once

#include "base/Uuid.h"
#include "records/DecodeError.h"
#include "records/DecodeRoom.h"
#include "records/Wire.h"

#include <simdjson.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

/// How each type is read from a parsed JSON value. Included where records are decoded and nowhere else.
namespace ombrivane {

using JsonElement = simdjson::dom::element;

template <class T> struct Decoder;

[[noreturn]] inline void wants(const char* what) {
    throw DecodeError(notUnderstood, std::string("wants ") + what);
}

template <> struct Decoder<std::string> {
    static void decode(const JsonElement& json, std::string& value, DecodeRoom& room) {
        std::string_view text;
        if (json.get(text) != simdjson::SUCCESS) wants("a text");
        room.takeText(text.size());
        value.assign(text);
    }
};

template <> struct Decoder<bool> {
    static void decode(const JsonElement& json, bool& value, DecodeRoom& /*room*/) {
        if (json.get(value) != simdjson::SUCCESS) wants("true or false");
    }
};

template <> struct Decoder<std::int64_t> {
    /// A number without a fraction, as 7 or 7.0, within 64 bits.
    static bool read(const JsonElement& json, std::int64_t& value) {
        if (json.get(value) == simdjson::SUCCESS) return true;
        double number = 0;
        if (!json.is_double() || json.get(number) != simdjson::SUCCESS) return false;
        constexpr double bound = 9007199254740992.0; // 2^53: beyond it a double is no exact count
        if (std::trunc(number) != number || std::abs(number) > bound) return false;
        value = static_cast<std::int64_t>(number);
        return true;
    }
    static void decode(const JsonElement& json, std::int64_t& value, DecodeRoom& /*room*/) {
        if (!read(json, value)) wants("a whole number");
    }
};

template <> struct Decoder<double> {
    static void decode(const JsonElement& json, double& value, DecodeRoom& /*room*/) {
        if (json.get(value) != simdjson::SUCCESS) wants("a number");
    }
};

template <> struct Decoder<Uuid> {
    static void decode(const JsonElement& json, Uuid& value, DecodeRoom& /*room*/) {
        std::string_view text;
        const auto uuid = json.get(text) == simdjson::SUCCESS ? Uuid::parse(text) : std::nullopt;
        if (!uuid) wants("the text of a UUID");
        value = *uuid;
    }
};

template <TaggedScalar T> struct Decoder<T> {
    static void decode(const JsonElement& json, T& value, DecodeRoom& room) {
        using First = std::variant_alternative_t<0, typename T::Payload>;
        First first{};
        std::string_view text;
        if (readFirst(json, first)) {
            value.payload = first;
        } else if (json.get(text) == simdjson::SUCCESS) {
            room.takeText(text.size());
            value.payload = std::string(text);
        } else {
            throw DecodeError(std::string(T::wrongType), std::string(T::wrongType));
        }
    }

private:
    static bool readFirst(const JsonElement& json, std::int64_t& value) {
        return Decoder<std::int64_t>::read(json, value);
    }
    static bool readFirst(const JsonElement& json, bool& value) {
        return json.get(value) == simdjson::SUCCESS;
    }
};

template <class T> struct Decoder<std::optional<T>> {
    static void decode(const JsonElement& json, std::optional<T>& value, DecodeRoom& room) {
        if (json.is_null()) return value.reset();
        Decoder<T>::decode(json, value.emplace(), room);
    }
};

template <class T> struct Decoder<std::vector<T>> {
    static void decode(const JsonElement& json, std::vector<T>& values, DecodeRoom& room) {
        simdjson::dom::array array;
        if (json.get(array) != simdjson::SUCCESS) wants("an array");
        // The elements were parsed, so that there are as many, and they are paid for.
        room.takeList(array.size(), sizeof(T));
        values.reserve(array.size());
        for (const JsonElement element : array) {
            try {
                Decoder<T>::decode(element, values.emplace_back(), room);
            } catch (DecodeError& error) {
                error.within(values.size() - 1);
                throw;
            }
        }
    }
};

template <class T> constexpr bool isOptional = false;
template <class T> constexpr bool isOptional<std::optional<T>> = true;

template <WireRecord T> struct Decoder<T> {
    static void decode(const JsonElement& json, T& record, DecodeRoom& room) {
        simdjson::dom::object object;
        if (json.get(object) != simdjson::SUCCESS) wants("an object");
        takeAll(object, record, room, std::make_index_sequence<std::tuple_size_v<decltype(T::wire)>>());
    }

private:
    using Iterator = simdjson::dom::object::iterator;

    template <std::size_t... Row>
    static void takeAll(const simdjson::dom::object& object, T& record, DecodeRoom& room,
                        std::index_sequence<Row...> /*all*/) {
        auto next = object.begin();
        (take<Row>(object, next, record, room), ...);
    }

    /// Keys usually arrive in the order of the table, so the one that follows is looked at first. One
    /// function for each row: comparing with a key that is known beforehand takes no call.
    template <std::size_t Row>
    static void take(const simdjson::dom::object& object, Iterator& next, T& record, DecodeRoom& room) {
        constexpr auto row = std::get<Row>(T::wire);
        auto& value = record.*(row.member);
        using Value = std::decay_t<decltype(value)>;
        if (!(next != object.end() && isAt(next, row.key))) {
            const Iterator found = find(object, row.key);
            if (!(found != object.end())) {
                if constexpr (isOptional<Value>) return;
                DecodeError error(notUnderstood, "is missing");
                error.within(row.key);
                throw error;
            }
            next = found;
        }
        try {
            Decoder<Value>::decode(next.value(), value, room);
        } catch (DecodeError& error) {
            error.within(row.key);
            throw;
        }
        ++next;
    }

    static bool isAt(const Iterator& member, std::string_view key) {
        return member.key_length() == key.size() &&
               std::memcmp(member.key_c_str(), key.data(), key.size()) == 0;
    }

    static Iterator find(const simdjson::dom::object& object, std::string_view key) {
        auto at = object.begin();
        while (at != object.end() && !isAt(at, key))
            ++at;
        return at;
    }
};

} // namespace ombrivane
