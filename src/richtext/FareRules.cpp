#include "richtext/FareRules.h"

#include "base/Utf8.h"
#include "platform/Limits.h"
#include "richtext/HtmlReader.h"
#include "richtext/ShownText.h"

#include <limits>
#include <utility>

namespace ombrivane {
namespace {

/// Beyond this a view would lay out more in one piece than it shows.
constexpr std::size_t longestParagraph = 2000;

/// How many bytes of `text` its first `count` code points take, and how many code points those are.
std::pair<std::size_t, std::size_t> prefix(std::string_view text, std::size_t count) {
    std::size_t bytes = 0;
    std::size_t points = 0;
    while (bytes < text.size() && points < count) {
        nextCodePoint(text, bytes);
        ++points;
    }
    return {bytes, points};
}

/// Lays a paragraph out into ones that are short enough, parted at a blank where there is one.
class Splitter {
public:
    Splitter(RuleParagraph::Kind kind, std::vector<RuleParagraph>& target) : target_(target) {
        part_.kind = kind;
    }

    void add(std::string_view text, bool underlined) {
        while (true) {
            const auto [bytes, points] = prefix(text, longestParagraph - length_);
            if (bytes == text.size()) {
                append(text, underlined);
                length_ += points;
                return;
            }
            const std::size_t blank = text.rfind(' ', bytes);
            if (blank != std::string_view::npos) {
                append(text.substr(0, blank), underlined);
                text.remove_prefix(blank + 1);
            } else if (length_ == 0) {
                append(text.substr(0, bytes), underlined);
                text.remove_prefix(bytes);
            }
            end();
        }
    }

    void end() {
        auto& runs = part_.runs;
        // The blank at which the next part begins.
        if (!runs.empty() && runs.back().text.ends_with(' ')) runs.back().text.pop_back();
        if (!runs.empty() && runs.back().text.empty()) runs.pop_back();
        if (!runs.empty()) target_.push_back(std::move(part_));
        part_ = {};
        length_ = 0;
    }

private:
    void append(std::string_view text, bool underlined) {
        if (!text.empty()) part_.runs.push_back({std::string(text), underlined});
    }

    std::vector<RuleParagraph>& target_;
    RuleParagraph part_;
    std::size_t length_ = 0;
};

} // namespace

std::vector<RuleParagraph> fareRules(std::string_view html) {
    constexpr auto unlimited = std::numeric_limits<std::size_t>::max();
    std::vector<RuleParagraph> shown;
    for (const auto& paragraph : HtmlReader::read(html.substr(0, limits::htmlBytes))) {
        Splitter splitter(paragraph.kind, shown);
        for (const auto& run : paragraph.runs)
            splitter.add(shownText(run.text, unlimited), run.underlined);
        splitter.end();
    }
    return shown;
}

std::string plainText(const std::vector<RuleParagraph>& paragraphs) {
    std::string text;
    for (const auto& paragraph : paragraphs) {
        if (!text.empty()) text += '\n';
        if (paragraph.kind == RuleParagraph::Kind::listItem) text += "• ";
        for (const auto& run : paragraph.runs)
            text += run.text;
    }
    return text;
}

} // namespace ombrivane
