#pragma once

#include "keyed/Keyed.h"
#include "richtext/RuleParagraph.h"

namespace ombrivane {

/// A paragraph is read by key as its text.
template <> struct Keyed<RuleParagraph> {
    static Json toJson(const RuleParagraph& paragraph) {
        std::string text;
        for (const auto& run : paragraph.runs)
            text += run.text;
        return text;
    }
};

} // namespace ombrivane
