#pragma once

#include "richtext/HtmlToken.h"

#include <optional>
#include <string>
#include <string_view>

namespace ombrivane {

/// Takes HTML apart by the rules of the HTML standard for tokens, once from front to end: the time grows with
/// the length alone, whatever the text holds. Attributes, comments, declarations and the content of raw-text
/// elements such as scripts are passed over. Any bytes will do.
class HtmlTokenizer {
public:
    /// `html` must outlive the tokenizer.
    explicit HtmlTokenizer(std::string_view html) : rest_(html) {}

    /// The next token, or nothing at the end.
    std::optional<HtmlToken> next();

private:
    HtmlToken takeText(std::size_t count);
    HtmlToken takeReference();
    HtmlToken takeTag(HtmlToken::Kind kind);
    bool takeAttributes();
    void skipRawText();
    void skipBehind(std::string_view end, std::size_t from);
    void skip(std::size_t count);
    bool startsWithLetter(std::size_t at) const;

    std::string_view rest_;
    std::string name_;
    std::string resolved_;
};

} // namespace ombrivane
