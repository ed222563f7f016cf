#pragma once

#include "keyed/Field.h"
#include "words/Words.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace ombrivane {

/// A value made of words, numbers or dates, kept as long as the language stays. Main thread.
template <class T> class Spoken {
public:
    explicit Spoken(std::function<T()> make) : make_(std::move(make)) {}

    /// Good until the next call; a computation that is being tracked follows the language.
    const T& get() const {
        const auto now = Words::shared().revision();
        if (!kept_ || madeAt_ != now) {
            kept_ = make_();
            madeAt_ = now;
        }
        return *kept_;
    }

private:
    std::function<T()> make_;
    mutable std::optional<T> kept_;
    mutable std::uint64_t madeAt_ = 0;
};

/// Says a field's text again when the language changes, as long as nothing else was assigned to it.
class SpokenField {
public:
    /// `field` outlives this and holds `text` from here on.
    SpokenField(Field<std::string>& field, Text text) : field_(field), text_(text), told_(said(text)) {
        field_.set(told_);
    }
    SpokenField(const SpokenField&) = delete;
    SpokenField& operator=(const SpokenField&) = delete;

private:
    void sayAgain() {
        if (field_.get() != told_) return;
        told_ = said(text_);
        field_.set(told_);
    }

    Field<std::string>& field_;
    Text text_;
    std::string told_;
    Subscription changed_ = Words::shared().observe([this] { sayAgain(); });
};

} // namespace ombrivane
