#pragma once

#include <cstdint>
#include <string>

namespace ombrivane {

/// A text of the same shape: other letters in place of its letters, other digits in place of its digits, all
/// else as it is, so that a form says of it what it said of `text`. The same text becomes the same one under
/// the same `salt`; without it nothing leads back. What is no UTF-8 comes as U+FFFD. Any thread.
std::string pseudonym(const std::string& text, std::uint64_t salt);

/// Another day of the same month, for "yyyy-MM-dd": how old somebody is stays true within a month. Anything
/// else becomes a `pseudonym`. Any thread.
std::string otherDay(const std::string& day, std::uint64_t salt);

} // namespace ombrivane
