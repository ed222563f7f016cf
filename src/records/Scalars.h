#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace ombrivane {

/// A free baggage allowance, which arrives as a number or as text. The cases compare first, so that 7 differs
/// from "7"; what arrived as text stays text.
struct FreeBaggage {
    using Payload = std::variant<std::int64_t, std::string>;
    static constexpr std::string_view wrongType = "Wrong type for FreeBaggage";
    Payload payload;

    static FreeBaggage integer(std::int64_t value) { return {value}; }
    static FreeBaggage string(std::string value) { return {std::move(value)}; }
    bool operator==(const FreeBaggage&) const = default;
};

/// A baggage weight in kilograms, which arrives as a number or as text.
struct Weight {
    using Payload = std::variant<std::int64_t, std::string>;
    static constexpr std::string_view wrongType = "Wrong type for Weight";
    Payload payload;

    static Weight integer(std::int64_t value) { return {value}; }
    static Weight string(std::string value) { return {std::move(value)}; }
    bool operator==(const Weight&) const = default;
};

/// The time between two segments as text, or `false` where no segment follows.
struct ConnectionTime {
    using Payload = std::variant<bool, std::string>;
    static constexpr std::string_view wrongType = "Wrong type for ConnectionTime";
    Payload payload;

    // NOLINTNEXTLINE(readability-identifier-naming): the system's own name of the case, with the language's
    // word
    static ConnectionTime bool_(bool value) { return {value}; }
    static ConnectionTime string(std::string value) { return {std::move(value)}; }
    bool operator==(const ConnectionTime&) const = default;
};

/// The weight as screens show it: "7 Kg". A text gains the unit too, and loses its ")" and quotes.
std::string displayForm(const Weight& weight);

/// The connection time as screens show it; "false" means that no connection follows.
std::string displayForm(const ConnectionTime& time);

} // namespace ombrivane
