#include "words/Words.h"

#include "base/SharedInstance.h"
#include "platform/Platform.h"
#include "words/Lexicon.h"

#include <fmt/core.h>
#include <unicode/localebuilder.h>
#include <unicode/locid.h>

namespace ombrivane {
namespace {

/// The device's language, as it is chosen.
constexpr const char* ofDevice = "device";

/// `tag`, or what the device says, as ICU calls it.
icu::Locale localeOf(const std::optional<std::string>& tag) {
    if (!tag || *tag == ofDevice)
        return icu::Locale::createCanonical(platform().localization->locale().c_str());
    UErrorCode status = U_ZERO_ERROR;
    return icu::Locale::forLanguageTag(*tag, status);
}

/// By which numbers and dates are shown.
std::string shownLocale(const std::optional<std::string>& language,
                        const std::optional<std::string>& region) {
    if (!language && !region) return platform().localization->locale();
    const icu::Locale locale = localeOf(language);
    if (!region) return locale.getName();
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale there = icu::LocaleBuilder().setLocale(locale).setRegion(*region).build(status);
    return U_FAILURE(status) ? locale.getName() : there.getName();
}

std::shared_ptr<Lexicon> lexiconOf(const LanguageChoice& choice) {
    if (!choice.language) return std::make_shared<Lexicon>("en");
    return std::make_shared<Lexicon>(*choice.language == ofDevice ? platform().localization->locale()
                                                                  : *choice.language,
                                     shownLocale(choice.language, choice.region));
}

} // namespace

Words::Words() : lexicon_(std::make_shared<Lexicon>("en")) {}

Words& Words::shared() { return SharedInstance<Words>::get(); }

std::shared_ptr<const Lexicon> Words::lexicon() const {
    changed_->noteRead();
    const std::lock_guard lock(mutex_);
    return lexicon_;
}

std::string Words::text(Text text, const std::vector<Place>& places) const {
    return lexicon()->text(text, places);
}

std::string Words::fill(const std::string& pattern, const std::vector<Place>& places) const {
    return lexicon()->fill(pattern, places);
}

void Words::choose(LanguageChoice choice) {
    auto lexicon = lexiconOf(choice);
    for (const auto& [key, pattern] : choice.texts) {
        const auto text = textNamed(key);
        const std::string refused = text ? lexicon->replace(*text, pattern) : "no text has this key";
        if (!refused.empty()) platform().diagnostics->print(fmt::format("Text \"{}\": {}", key, refused));
    }
    {
        const std::lock_guard lock(mutex_);
        choice_ = std::move(choice);
        lexicon_ = std::move(lexicon);
        ++revision_;
    }
    changed_->notify();
}

std::string Words::locale() const {
    changed_->noteRead();
    std::optional<std::string> language;
    std::optional<std::string> region;
    {
        const std::lock_guard lock(mutex_);
        language = choice_.language;
        region = choice_.region;
    }
    return shownLocale(language, region);
}

bool Words::isChosen() const {
    changed_->noteRead();
    const std::lock_guard lock(mutex_);
    return choice_.language || choice_.region;
}

std::uint64_t Words::revision() const {
    changed_->noteRead();
    const std::lock_guard lock(mutex_);
    return revision_;
}

std::string Words::language() const { return lexicon()->language(); }

bool Words::isRightToLeft() const { return lexicon()->isRightToLeft(); }

std::string said(Text text, const std::vector<Place>& places) { return Words::shared().text(text, places); }

void chooseLanguage(LanguageChoice choice) { Words::shared().choose(std::move(choice)); }

} // namespace ombrivane
