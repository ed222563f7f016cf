#pragma once

#include "base/Boxed.h"
#include "base/Uuid.h"
#include "records/DecodeError.h"
#include "records/DecodeRoom.h"
#include "records/Wire.h"

#include <simdjson.h>

#include <array>
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

[[noreturn]] inline void wants(const char* what) { throw DecodeError(std::string("wants ") + what); }

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

template <class T> struct Decoder<Boxed<T>> {
    static void decode(const JsonElement& json, Boxed<T>& value, DecodeRoom& room) {
        if (json.is_null()) return value.reset();
        room.takeRecord(sizeof(T));
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
template <class T> constexpr bool isOptional<Boxed<T>> = true;

template <WireRecord T> struct Decoder<T> {
    static void decode(const JsonElement& json, T& record, DecodeRoom& room) {
        simdjson::dom::object object;
        if (json.get(object) != simdjson::SUCCESS) wants("an object");
        Walk walk{object, object.begin(), std::nullopt};
        takeAll(walk, record, room, std::make_index_sequence<rows>());
    }

private:
    using Iterator = simdjson::dom::object::iterator;
    static constexpr std::size_t rows = std::tuple_size_v<decltype(T::wire)>;
    /// Where the member of each row stands; the object's end for a key that is missing.
    using Places = std::array<Iterator, rows>;

    struct Walk {
        simdjson::dom::object object;
        Iterator next;                ///< the member after the one that was taken last
        std::optional<Places> places; ///< once the keys are not those of the table, one after the other
    };

    template <std::size_t... Row>
    static void takeAll(Walk& walk, T& record, DecodeRoom& room, std::index_sequence<Row...> /*all*/) {
        (take<Row>(walk, record, room), ...);
    }

    /// Keys usually arrive in the order of the table, so the one that follows is looked at first. One
    /// function for each row: comparing with a key that is known beforehand takes no call.
    template <std::size_t Row> static void take(Walk& walk, T& record, DecodeRoom& room) {
        constexpr auto row = std::get<Row>(T::wire);
        auto& value = record.*(row.member);
        using Value = std::decay_t<decltype(value)>;
        const Iterator end = walk.object.end();
        if (walk.places || !(walk.next != end && isAt(walk.next, row.key))) {
            if (!walk.places) walk.places = placesIn(walk.object);
            const Iterator found = (*walk.places)[Row];
            if (!(found != end)) {
                if constexpr (isOptional<Value>) return;
                DecodeError error("is missing");
                error.within(row.key);
                throw error;
            }
            walk.next = found;
        }
        try {
            Decoder<Value>::decode(walk.next.value(), value, room);
        } catch (DecodeError& error) {
            error.within(row.key);
            throw;
        }
        ++walk.next;
    }

    static bool isAt(const Iterator& member, std::string_view key) {
        return member.key_length() == key.size() &&
               std::memcmp(member.key_c_str(), key.data(), key.size()) == 0;
    }

    /// One pass over the object finds all rows. Each member is looked for from the row on that follows the
    /// one found last; of two members with one key it is the first.
    static Places placesIn(const simdjson::dom::object& object) {
        constexpr auto keys = std::apply(
            [](const auto&... row) { return std::array<std::string_view, rows>{row.key...}; }, T::wire);
        Places places;
        places.fill(object.end());
        std::size_t expected = 0;
        for (auto member = object.begin(); member != object.end(); ++member) {
            for (std::size_t tried = 0; tried < rows; ++tried) {
                const std::size_t row = (expected + tried) % rows;
                if (!isAt(member, keys[row])) continue;
                if (!(places[row] != object.end())) places[row] = member;
                expected = row + 1;
                break;
            }
        }
        return places;
    }
};

} // namespace ombrivane
