#pragma once

#include "keyed/Observable.h"
#include "words/LanguageChoice.h"
#include "words/Text.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace ombrivane {

class Lexicon;

/// What stands at a named place of a pattern: a text, or a number that the pattern may inflect.
using Place = std::pair<const char*, std::variant<std::string, std::int64_t>>;

/// The texts as the customer reads them. A derived value that reads one follows the language. One instance
/// for the life of the process; any thread, but for `choose`.
class Words {
public:
    Words();
    static Words& shared();

    /// `text` without places, as it stands; with places, each filled in. In a language that is written from
    /// the right, a filled-in text keeps its own direction.
    std::string text(Text text, const std::vector<Place>& places = {}) const;

    /// The same for the words of a text that was read before, for whoever shows texts by their words.
    std::string fill(const std::string& pattern, const std::vector<Place>& places) const;

    /// See `chooseLanguage`. Main thread.
    void choose(LanguageChoice choice);

    /// The ICU locale by which numbers and dates are shown.
    std::string locale() const;
    /// Whether numbers and dates follow the wallet's choice and not the device.
    bool isChosen() const;
    /// Another number for each choice; what was made of words is good while it stays. A computation that is
    /// being tracked follows it.
    std::uint64_t revision() const;
    /// The language that is spoken, as its translation is called: "en", "ne".
    std::string language() const;
    /// Whether the language is written from the right to the left.
    bool isRightToLeft() const;

    /// `observer` is told when another language or region was chosen. Main thread.
    Subscription observe(Observer observer) { return changed_->observe(std::move(observer)); }

private:
    struct Changed final : Observable {};

    std::shared_ptr<const Lexicon> lexicon() const;

    std::shared_ptr<Changed> changed_ = std::make_shared<Changed>();
    mutable std::mutex mutex_; ///< guards what follows
    std::uint64_t revision_ = 0;
    LanguageChoice choice_;
    std::shared_ptr<const Lexicon> lexicon_;
};

/// A text in the customer's language; short for `Words::shared().text`.
std::string said(Text text, const std::vector<Place>& places = {});

} // namespace ombrivane
