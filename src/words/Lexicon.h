#pragma once

#include "words/Text.h"
#include "words/Words.h"

#include <unicode/msgfmt.h>

#include <array>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace ombrivane {

/// All texts in one language. Any thread.
class Lexicon {
public:
    /// Of the translation that serves `tag`, a BCP 47 tag: its own or that of its language; English where
    /// none does.
    /// @param locale the ICU locale by which numbers in its sentences are written
    explicit Lexicon(const std::string& tag, std::string locale = "en");

    /// Puts `pattern` in the place of a text.
    /// @return why it cannot be read, or which of its places the text does not have; empty when it was taken
    std::string replace(Text text, const std::string& pattern);

    /// See `Words::text`.
    std::string text(Text text, const std::vector<Place>& places) const;
    /// See `Words::fill`.
    std::string fill(const std::string& pattern, const std::vector<Place>& places) const;
    /// The language of the translation in use, as its file is called: "en", "ne".
    const std::string& language() const { return language_; }
    bool isRightToLeft() const { return rightToLeft_; }

private:
    std::unique_ptr<icu::MessageFormat> read(const std::string& pattern) const;
    std::string filled(const icu::MessageFormat& format, const std::vector<Place>& places) const;

    std::string language_ = "en";
    const std::string locale_;
    bool rightToLeft_ = false;
    std::array<std::string, wordings.size()> patterns_;
    mutable std::mutex mutex_; ///< guards the formats, also while one is used
    mutable std::map<Text, std::unique_ptr<icu::MessageFormat>> formats_;
};

} // namespace ombrivane
