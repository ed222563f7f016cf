#include "richtext/HtmlTokenizer.h"

#include "richtext/HtmlReference.h"

#include <algorithm>
#include <array>

namespace ombrivane {
namespace {

constexpr std::string_view blanks = " \t\n\r\f";
constexpr std::string_view endsName = " \t\n\r\f/>";
constexpr std::string_view endsValue = " \t\n\r\f>";

/// Their content is no markup, and none of it is text to show.
constexpr std::array<std::string_view, 8> rawTextElements = {
    "iframe", "noembed", "noframes", "script", "style", "textarea", "title", "xmp"};

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool isLetter(char c) { return lower(c) >= 'a' && lower(c) <= 'z'; }

} // namespace

std::optional<HtmlToken> HtmlTokenizer::next() {
    while (!rest_.empty()) {
        if (rest_.front() == '&') return takeReference();
        if (rest_.front() != '<') return takeText(rest_.find_first_of("<&"));
        if (startsWithLetter(1)) return takeTag(HtmlToken::Kind::startTag);
        if (rest_.starts_with("</") && startsWithLetter(2)) return takeTag(HtmlToken::Kind::endTag);
        if (rest_.starts_with("<!--")) {
            // "<!-->" is a whole comment, and "--!>" an end that writers have got wrong.
            skipBehind(rest_.find("--!>", 2) < rest_.find("-->", 2) ? "--!>" : "-->", 2);
        } else if (rest_.starts_with("</") || rest_.starts_with("<!") || rest_.starts_with("<?")) {
            skipBehind(">", 2);
        } else {
            return takeText(1);
        }
    }
    return std::nullopt;
}

HtmlToken HtmlTokenizer::takeText(std::size_t count) {
    const HtmlToken token{HtmlToken::Kind::text, rest_.substr(0, count)};
    skip(count);
    return token;
}

HtmlToken HtmlTokenizer::takeReference() {
    const auto reference = HtmlReference::at(rest_);
    if (!reference) return takeText(1);
    resolved_ = reference->text;
    skip(reference->length);
    return {HtmlToken::Kind::text, resolved_};
}

HtmlToken HtmlTokenizer::takeTag(HtmlToken::Kind kind) {
    skip(kind == HtmlToken::Kind::startTag ? 1 : 2);
    name_ = rest_.substr(0, rest_.find_first_of(endsName));
    std::transform(name_.begin(), name_.end(), name_.begin(), lower);
    skip(name_.size());
    const bool isSelfClosing = takeAttributes();
    if (kind == HtmlToken::Kind::startTag) skipRawText();
    return {kind, name_, isSelfClosing};
}

/// Passes over everything up to the tag's end. @return whether a slash stood before it.
bool HtmlTokenizer::takeAttributes() {
    bool isSelfClosing = false;
    while (!rest_.empty()) {
        const char c = rest_.front();
        skip(1);
        if (c == '>') return isSelfClosing;
        isSelfClosing = c == '/';
        if (c != '=') continue;
        skip(rest_.find_first_not_of(blanks));
        if (rest_.starts_with('"') || rest_.starts_with('\'')) {
            skipBehind(rest_.substr(0, 1), 1);
        } else {
            skip(rest_.find_first_of(endsValue));
        }
    }
    return isSelfClosing;
}

/// Up to the closing tag of the element that was just opened, if that is one of raw text.
void HtmlTokenizer::skipRawText() {
    if (!std::binary_search(rawTextElements.begin(), rawTextElements.end(), name_)) return;
    while (!rest_.empty()) {
        skip(rest_.find("</"));
        const auto name = rest_.substr(std::min<std::size_t>(2, rest_.size()), name_.size());
        const bool isSame =
            std::equal(name.begin(), name.end(), name_.begin(), name_.end(), [](char a, char b) {
                return lower(a) == b;
            });
        if (isSame && rest_.find_first_of(endsName, 2 + name.size()) == 2 + name.size()) return;
        skip(2);
    }
}

void HtmlTokenizer::skipBehind(std::string_view end, std::size_t from) {
    const std::size_t found = rest_.find(end, from);
    skip(found == std::string_view::npos ? found : found + end.size());
}

/// Everything when `count` is beyond the end.
void HtmlTokenizer::skip(std::size_t count) { rest_.remove_prefix(std::min(count, rest_.size())); }

bool HtmlTokenizer::startsWithLetter(std::size_t at) const {
    return at < rest_.size() && isLetter(rest_[at]);
}

} // namespace ombrivane
