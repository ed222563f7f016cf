#pragma once

#include "keyed/Fields.h"
#include "words/Words.h"

#include <string>

namespace ombrivane {

/// A text of a screen that only the language changes: a title, a label, the text of a button.
class Caption final : public Member {
public:
    /// `text` under `key`, which outlives it.
    Caption(Fields& owner, std::string_view key, Text text) :
        Member(owner, key, MemberKind::derived), text_(text) {}

    /// In the customer's language; a computation that is being tracked follows it.
    std::string get() const { return said(text_); }

    Json read() const override { return get(); }
    Subscription observe(Observer observer) override { return Words::shared().observe(std::move(observer)); }

private:
    Text text_;
};

} // namespace ombrivane
