#include "richtext/HtmlReader.h"

#include "richtext/HtmlRole.h"
#include "richtext/HtmlTokenizer.h"

#include <algorithm>

namespace ombrivane {

std::vector<RuleParagraph> HtmlReader::read(std::string_view html) {
    HtmlReader reader;
    HtmlTokenizer tokenizer(html);
    while (const auto token = tokenizer.next())
        reader.take(*token);
    return reader.builder_.take();
}

void HtmlReader::take(const HtmlToken& token) {
    if (!skipped_.empty()) {
        if (token.kind == HtmlToken::Kind::text || token.isSelfClosing || token.text != skipped_) return;
        skippedDepth_ += token.kind == HtmlToken::Kind::startTag ? 1 : -1;
        if (skippedDepth_ == 0) skipped_.clear();
    } else if (token.kind == HtmlToken::Kind::text) {
        addText(token.text);
    } else if (token.kind == HtmlToken::Kind::endTag) {
        end(token.text);
    } else if (htmlRole(token.text) != HtmlRole::skipped) {
        begin(token.text);
    } else if (!token.isSelfClosing) {
        skipped_ = token.text;
        skippedDepth_ = 1;
    }
}

void HtmlReader::addText(std::string_view text) {
    if (preformatted_ > 0) {
        builder_.addPreformatted(text, underlined_ > 0);
    } else {
        builder_.add(text, underlined_ > 0);
    }
}

void HtmlReader::begin(std::string_view name) {
    switch (htmlRole(name)) {
    case HtmlRole::none:
    case HtmlRole::skipped:
        break;
    case HtmlRole::underlined:
        ++underlined_;
        break;
    case HtmlRole::preformatted:
        ++preformatted_;
        builder_.endParagraph();
        break;
    case HtmlRole::block:
    case HtmlRole::list:
        builder_.endParagraph();
        break;
    case HtmlRole::item:
        builder_.beginItem();
        break;
    case HtmlRole::table:
        builder_.beginTable();
        break;
    case HtmlRole::rowGroup:
        builder_.endRow();
        break;
    case HtmlRole::row:
        builder_.beginRow();
        break;
    case HtmlRole::cell:
        // An underline that a cell forgot to end does not reach the next.
        underlined_ = 0;
        builder_.beginCell();
        break;
    }
}

void HtmlReader::end(std::string_view name) {
    switch (htmlRole(name)) {
    case HtmlRole::none:
    case HtmlRole::skipped:
        break;
    case HtmlRole::underlined:
        underlined_ = std::max(0, underlined_ - 1);
        break;
    case HtmlRole::preformatted:
        preformatted_ = std::max(0, preformatted_ - 1);
        builder_.endParagraph();
        break;
    case HtmlRole::block:
    case HtmlRole::cell:
        builder_.endParagraph();
        break;
    case HtmlRole::list:
    case HtmlRole::item:
        builder_.endItem();
        break;
    case HtmlRole::table:
        builder_.endTable();
        break;
    case HtmlRole::rowGroup:
    case HtmlRole::row:
        builder_.endRow();
        break;
    }
}

} // namespace ombrivane
