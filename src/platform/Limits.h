#pragma once

#include <chrono>
#include <cstddef>

/// What the component accepts from outside. A value beyond its limit is an error, never a crash or a freeze.
namespace ombrivane::limits {

/// The unit of the sizes below.
inline constexpr std::size_t mebibyte = std::size_t{1024} * 1024;

/// An answer of the service, after decompression. A list of 1,000 offers takes about 7 MB.
inline constexpr std::size_t answerBytes = 32 * mebibyte;
/// The elements of one list of an answer, and the members of an answer.
inline constexpr std::size_t listElements = 10'000;
/// What reading an answer and the records that it makes may take beyond the answer's own bytes: three bytes
/// can ask for a record of a kilobyte.
inline constexpr std::size_t structureBytes = 56 * mebibyte;
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
/// The longest silence of a connection.
inline constexpr std::chrono::seconds idle{60};
/// A request in all.
inline constexpr std::chrono::seconds request{180};
/// An upload in all.
inline constexpr std::chrono::seconds upload{600};

} // namespace ombrivane::limits
