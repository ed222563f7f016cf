#include "words/Lexicon.h"

#include "words/Catalogue.h"

#include <unicode/locid.h>
#include <unicode/messagepattern.h>

#include <algorithm>
#include <set>

namespace ombrivane {
namespace {

/// Keep what stands between them in its own direction.
constexpr const char* isolateStart = "\u2068";
constexpr const char* isolateEnd = "\u2069";

/// "zh-Hant-TW" is served by "zh-Hant-TW", "zh-Hant" or "zh".
const Catalogue* serving(std::string tag) {
    std::replace(tag.begin(), tag.end(), '_', '-');
    while (true) {
        const auto all = catalogues();
        const auto found = std::find_if(
            all.begin(), all.end(), [&tag](const Catalogue& one) { return one.language == tag; });
        if (found != all.end()) return &*found;
        const auto cut = tag.rfind('-');
        if (cut == std::string::npos) return nullptr;
        tag.resize(cut);
    }
}

std::string utf8(const icu::UnicodeString& text) {
    std::string bytes;
    return text.toUTF8String(bytes);
}

/// The named places of a pattern, those inside of a plural's forms included.
std::set<std::string> placesOf(const icu::MessagePattern& pattern) {
    std::set<std::string> names;
    for (std::int32_t i = 0; i < pattern.countParts(); ++i) {
        const auto type = pattern.getPartType(i);
        if (type == UMSGPAT_PART_TYPE_ARG_NAME || type == UMSGPAT_PART_TYPE_ARG_NUMBER)
            names.insert(utf8(pattern.getSubstring(pattern.getPart(i))));
    }
    return names;
}

icu::MessagePattern parsed(std::string_view text, UErrorCode& status) {
    UParseError where;
    icu::MessagePattern pattern(status);
    pattern.parse(icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<int>(text.size()))),
                  &where,
                  status);
    return pattern;
}

} // namespace

Lexicon::Lexicon(const std::string& tag, std::string locale) : locale_(std::move(locale)) {
    const Catalogue* catalogue = serving(tag);
    if (catalogue != nullptr) {
        language_ = catalogue->language;
        rightToLeft_ = icu::Locale(language_.c_str()).isRightToLeft() != 0;
    }
    for (std::size_t i = 0; i < wordings.size(); ++i) {
        const Wording& wording = wordings.at(i);
        if (catalogue != nullptr) patterns_.at(i) = translated(*catalogue, wording.key, wording.english);
        if (patterns_.at(i).empty()) patterns_.at(i) = wording.english;
    }
}

std::string Lexicon::replace(Text text, const std::string& pattern) {
    UErrorCode status = U_ZERO_ERROR;
    const auto known = placesOf(parsed(wordingOf(text).english, status));
    const auto wanted = placesOf(parsed(pattern, status));
    if (U_FAILURE(status)) return u_errorName(status);
    for (const auto& name : wanted) {
        if (!known.contains(name)) return "no place is called " + name;
    }
    patterns_.at(static_cast<std::size_t>(text)) = pattern;
    formats_.erase(text);
    return "";
}

std::unique_ptr<icu::MessageFormat> Lexicon::read(const std::string& pattern) const {
    UErrorCode status = U_ZERO_ERROR;
    return std::make_unique<icu::MessageFormat>(
        icu::UnicodeString::fromUTF8(pattern), icu::Locale(locale_.c_str()), status);
}

std::string Lexicon::filled(const icu::MessageFormat& format, const std::vector<Place>& places) const {
    std::vector<icu::UnicodeString> names;
    std::vector<icu::Formattable> values;
    for (const auto& [name, value] : places) {
        names.emplace_back(name);
        if (const auto* number = std::get_if<std::int64_t>(&value)) {
            values.emplace_back(*number);
            continue;
        }
        const auto& words = std::get<std::string>(value);
        const bool isolated = rightToLeft_ && !words.empty();
        values.emplace_back(
            icu::UnicodeString::fromUTF8(isolated ? isolateStart + words + isolateEnd : words));
    }
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString text;
    format.format(names.data(), values.data(), static_cast<std::int32_t>(names.size()), text, status);
    return utf8(text);
}

std::string Lexicon::text(Text text, const std::vector<Place>& places) const {
    const auto& pattern = patterns_.at(static_cast<std::size_t>(text));
    if (places.empty()) return pattern;
    const std::lock_guard lock(mutex_);
    auto& format = formats_[text];
    if (!format) format = read(pattern);
    return filled(*format, places);
}

std::string Lexicon::fill(const std::string& pattern, const std::vector<Place>& places) const {
    return filled(*read(pattern), places);
}

} // namespace ombrivane
