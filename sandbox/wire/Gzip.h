// A gzip body that is small on the wire and large once unpacked.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ombrivane::sandbox {

/// `start`, `filler` again and again, and `end`, in all `size` bytes (at least as many as `start` and `end`
/// have), packed. Memory stays in proportion to the packed size.
std::string gzippedFiller(std::string_view start, std::uint64_t size, std::string_view end,
                          std::string_view filler = "x");

} // namespace ombrivane::sandbox
