#pragma once

#include "keyed/Fields.h"

#include <string>

namespace ombrivane {

/// A word of a screen that never changes: a title, the text of a button.
class Constant final : public Member {
public:
    /// `text` under `key`, which outlives it.
    Constant(Fields& owner, std::string_view key, std::string text) :
        Member(owner, key, MemberKind::derived), text_(std::move(text)) {}

    const std::string& get() const { return text_; }

    Json read() const override { return text_; }
    /// Never tells.
    Subscription observe(Observer /*observer*/) override { return {}; }

private:
    std::string text_;
};

} // namespace ombrivane
