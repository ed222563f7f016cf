#pragma once

#include <string>
#include <vector>

namespace ombrivane {

/// One paragraph of the fare rules, ready to be shown as plain text.
struct RuleParagraph {
    enum class Kind { paragraph, listItem };

    /// A stretch of text with one look.
    struct Run {
        std::string text;
        bool underlined = false;

        bool operator==(const Run&) const = default;
    };

    Kind kind = Kind::paragraph;
    std::vector<Run> runs;

    bool operator==(const RuleParagraph&) const = default;
};

} // namespace ombrivane
