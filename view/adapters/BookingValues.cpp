#include "adapters/BookingValues.h"

#include <algorithm>

namespace ombrivane::view {

QString ParagraphValue::text() const {
    std::string text;
    for (const auto& run : lines_.runs)
        text += run.text;
    return shown(text);
}

/// A heading of the rules is underlined as a whole.
bool ParagraphValue::isUnderlined() const {
    return !lines_.runs.empty() && std::all_of(lines_.runs.begin(), lines_.runs.end(), [](const auto& run) {
        return run.underlined;
    });
}

} // namespace ombrivane::view
