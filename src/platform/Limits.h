#pragma once

#include <chrono>
#include <cstddef>

/// What the component accepts from outside. A value beyond its limit is an error, never a crash or a freeze.
namespace ombrivane::limits {

/// The unit of the sizes below.
inline constexpr std::size_t mebibyte = std::size_t{1024} * 1024;

/// A list of offers, after decompression: with every attribute 10,000 take 64 MiB, of round trips 124 MiB.
inline constexpr std::size_t searchBytes = 160 * mebibyte;
/// Airports, countries, availability or fare rules, after decompression: rules of `htmlBytes`, which escaping
/// makes longer.
inline constexpr std::size_t lookupBytes = 2 * mebibyte;
/// One record, after decompression: the token, a reservation, a payment, a ticket. Nothing in them grows but
/// with the travellers, of whom there are nine at most.
inline constexpr std::size_t recordBytes = mebibyte / 4;
/// All lines of an answer before and after its body, informational answers included. No header is read.
inline constexpr std::size_t headerBytes = mebibyte / 16;
/// The elements of one list of an answer, and the members of an answer.
inline constexpr std::size_t listElements = 10'000;
/// What reading an answer and the records that it makes may take beyond the answer's own bytes: three bytes
/// can ask for a record of a kilobyte.
inline constexpr std::size_t structureBytes = 56 * mebibyte;
/// The same for a list of offers: 10,000 with every attribute take 108 MiB, of round trips 208 MiB.
inline constexpr std::size_t searchStructureBytes = 288 * mebibyte;
/// A picture from an address, before decoding.
inline constexpr std::size_t logoBytes = mebibyte;
/// Either side of a picture from an address, in points.
inline constexpr int logoSide = 1024;
/// A picture chosen by the customer, in points over all.
inline constexpr long long documentPoints = 64LL * 1000 * 1000;
/// Either side of a picture chosen by the customer, in points: the longest that a JPEG may have.
inline constexpr int documentSide = 65'500;
/// A picture chosen by the customer, before decoding.
inline constexpr std::size_t documentBytes = 64 * mebibyte;
/// Fare rules as HTML.
inline constexpr std::size_t htmlBytes = mebibyte;
/// A text that is shown, in UTF-8 bytes. What is sent or handed over is not cut.
inline constexpr std::size_t shownBytes = 4000;
/// Pictures that are fetched at a time.
inline constexpr std::size_t pictureTransfers = 6;
/// Connections that stand ready for a request that is likely soon.
inline constexpr std::size_t standingConnections = 2;
/// How long one stands that nobody takes: customers take seconds from a screen to its button, and what is
/// older may be gone in some middle box without a word.
inline constexpr std::chrono::seconds standing{20};
/// The longest silence of a connection; what is no part of a body is silence.
inline constexpr std::chrono::seconds idle{60};
/// A request in all.
inline constexpr std::chrono::seconds request{180};
/// An upload in all.
inline constexpr std::chrono::seconds upload{600};

} // namespace ombrivane::limits
