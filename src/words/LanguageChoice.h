#pragma once

#include "base/Api.h"

#include <map>
#include <optional>
#include <string>

namespace ombrivane {

/// What a wallet decides of the component's language. Nothing given is English, with numbers and dates as the
/// device writes them.
struct LanguageChoice {
    /// A BCP 47 tag such as "ne" or "ar-EG", or "device" for the device's own language. A language without a
    /// translation speaks English.
    std::optional<std::string> language;
    /// A region of ISO 3166 such as "NP", by which numbers, dates and prices are written; absent: that of the
    /// language, or of the device where no language is chosen.
    std::optional<std::string> region;
    /// Texts by key in the place of the component's own: patterns with the named places of the English text
    /// or some of them. words/Texts.def lists them all.
    std::map<std::string, std::string> texts;

    /// Whether both ask for the same.
    bool operator==(const LanguageChoice&) const = default;
};

/// Takes effect at once, also while the component is open, for all that it shows from here on; messages that
/// stand already stay. A key that does not exist and a pattern that cannot be read are told to the
/// diagnostics of the platform and leave the text as it was. Main thread, after `Platform::install`.
OMBRIVANE_API void chooseLanguage(LanguageChoice choice);

} // namespace ombrivane
