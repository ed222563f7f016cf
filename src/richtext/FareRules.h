#pragma once

#include "richtext/RuleParagraph.h"

#include <string>
#include <string_view>
#include <vector>

namespace ombrivane {

/// The text of fare rules that arrive as HTML, reduced to paragraphs of at most about 2,000 characters. A row
/// of a table is one paragraph, its cells parted by " · ". Scripts, styles, controls, pictures and comments
/// are left out; nothing is fetched and no file is opened. HTML without a text gives an empty list. Beyond
/// the limit for HTML the text is cut; where its structure is so broken that reading it would take noticeable
/// time, reading ends there. Any thread.
std::vector<RuleParagraph> fareRules(std::string_view html);

/// One line a paragraph, each list item behind a "• ".
std::string plainText(const std::vector<RuleParagraph>& paragraphs);

} // namespace ombrivane
