#include "records/Scalars.h"

#include <fmt/core.h>

#include <initializer_list>

namespace ombrivane {
namespace {

/// The case with its payload, as "integer(7)" or "string("20")".
std::string caseText(std::int64_t value) { return fmt::format("integer({})", value); }
std::string caseText(bool value) { return fmt::format("bool({})", value); }
std::string caseText(const std::string& value) { return fmt::format("string(\"{}\")", value); }

std::string without(std::string text, std::initializer_list<std::string_view> marks) {
    for (const std::string_view mark : marks) {
        for (auto at = text.find(mark); at != std::string::npos; at = text.find(mark, at)) {
            text.erase(at, mark.size());
        }
    }
    return text;
}

} // namespace

std::string displayForm(const Weight& weight) {
    const std::string text =
        std::visit([](const auto& payload) { return caseText(payload); }, weight.payload);
    return without(text + " Kg", {"integer(", "string(", ")", "\""});
}

std::string displayForm(const ConnectionTime& time) {
    const std::string text = std::visit([](const auto& payload) { return caseText(payload); }, time.payload);
    return without(text, {"bool(", "string(", ")", "\""});
}

} // namespace ombrivane
