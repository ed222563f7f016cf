#include "richtext/ParagraphBuilder.h"

#include <algorithm>
#include <utility>

namespace ombrivane {
namespace {

constexpr std::string_view collapsible = " \t\n\r\f";
constexpr std::string_view hardBlank = "\u00A0";
constexpr std::string_view cellSeparator = " \u00B7 ";

std::string_view withoutLeadingBlanks(std::string_view text) {
    while (!text.empty()) {
        if (text.front() == ' ') {
            text.remove_prefix(1);
        } else if (text.starts_with(hardBlank)) {
            text.remove_prefix(hardBlank.size());
        } else {
            break;
        }
    }
    return text;
}

void dropTrailingBlanks(std::string& text) {
    while (!text.empty()) {
        if (text.back() == ' ') {
            text.pop_back();
        } else if (text.ends_with(hardBlank)) {
            text.resize(text.size() - hardBlank.size());
        } else {
            break;
        }
    }
}

} // namespace

void ParagraphBuilder::add(std::string_view text, bool underlined) {
    while (!text.empty()) {
        const std::size_t word = text.find_first_not_of(collapsible);
        if (word != 0 && !owesBlank_) {
            owesBlank_ = true;
            blankIsUnderlined_ = underlined;
        }
        if (word == std::string_view::npos) return;
        if (std::exchange(owesBlank_, false)) append(" ", blankIsUnderlined_);
        text.remove_prefix(word);
        const std::size_t end = std::min(text.find_first_of(collapsible), text.size());
        append(text.substr(0, end), underlined);
        text.remove_prefix(end);
    }
}

void ParagraphBuilder::addPreformatted(std::string_view text, bool underlined) {
    while (true) {
        const std::size_t end = text.find('\n');
        if (std::exchange(owesBlank_, false)) append(" ", blankIsUnderlined_);
        append(text.substr(0, end), underlined);
        if (end == std::string_view::npos) return;
        endParagraph();
        text.remove_prefix(end + 1);
    }
}

void ParagraphBuilder::append(std::string_view text, bool underlined) {
    if (!isVisible_) text = withoutLeadingBlanks(text);
    if (text.empty()) return;
    isVisible_ = true;
    auto& runs = current_.runs;
    if (runs.empty() || runs.back().underlined != underlined) runs.push_back({"", underlined});
    runs.back().text += text;
}

void ParagraphBuilder::endParagraph() {
    owesBlank_ = false;
    if (!std::exchange(isVisible_, false)) return;
    auto& runs = current_.runs;
    while (!runs.empty()) {
        dropTrailingBlanks(runs.back().text);
        if (!runs.back().text.empty()) break;
        runs.pop_back();
    }
    if (std::exchange(opensItem_, false)) current_.kind = RuleParagraph::Kind::listItem;
    paragraphs_.push_back(std::exchange(current_, {}));
}

void ParagraphBuilder::beginItem() {
    endParagraph();
    opensItem_ = true;
    keepRowApart();
}

void ParagraphBuilder::endItem() {
    endParagraph();
    opensItem_ = false;
}

void ParagraphBuilder::beginTable() {
    endParagraph();
    keepRowApart();
    tables_.emplace_back();
}

void ParagraphBuilder::endTable() {
    endRow();
    if (!tables_.empty()) tables_.pop_back();
}

void ParagraphBuilder::beginRow() {
    endRow();
    if (!tables_.empty()) tables_.back() = Row{{paragraphs_.size()}};
}

void ParagraphBuilder::endRow() {
    endParagraph();
    if (tables_.empty()) return;
    const Table row = std::exchange(tables_.back(), std::nullopt);
    if (row && row->isJoined) join(*row);
}

void ParagraphBuilder::beginCell() {
    endParagraph();
    if (tables_.empty()) return;
    if (!tables_.back()) beginRow();
    tables_.back()->cells.push_back(paragraphs_.size());
}

void ParagraphBuilder::keepRowApart() {
    if (!tables_.empty() && tables_.back()) tables_.back()->isJoined = false;
}

void ParagraphBuilder::join(const Row& row) {
    std::size_t filled = 0;
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        const std::size_t end = i + 1 < row.cells.size() ? row.cells[i + 1] : paragraphs_.size();
        if (row.cells[i] < end) ++filled;
    }
    if (filled < 2) return;

    const std::size_t first = row.cells.front();
    opensItem_ = paragraphs_[first].kind == RuleParagraph::Kind::listItem;
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        const std::size_t end = i + 1 < row.cells.size() ? row.cells[i + 1] : paragraphs_.size();
        for (std::size_t at = row.cells[i]; at < end; ++at) {
            if (isVisible_) append(at == row.cells[i] ? cellSeparator : " ", false);
            for (const auto& run : paragraphs_[at].runs)
                append(run.text, run.underlined);
        }
    }
    paragraphs_.resize(first);
    endParagraph();
}

std::vector<RuleParagraph> ParagraphBuilder::take() {
    while (!tables_.empty())
        endTable();
    endParagraph();
    return std::exchange(paragraphs_, {});
}

} // namespace ombrivane
