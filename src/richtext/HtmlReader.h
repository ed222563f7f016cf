#pragma once

#include "richtext/HtmlToken.h"
#include "richtext/ParagraphBuilder.h"

#include <string>
#include <string_view>
#include <vector>

namespace ombrivane {

/// Reads the text of one HTML document. It makes no tree: what matters of the open elements are a few counts,
/// so neither depth nor a tag that fits no other costs anything.
class HtmlReader {
public:
    static std::vector<RuleParagraph> read(std::string_view html);

private:
    void take(const HtmlToken& token);
    void addText(std::string_view text);
    void begin(std::string_view name);
    void end(std::string_view name);

    ParagraphBuilder builder_;
    std::string skipped_; ///< the element that is passed over, or empty
    int skippedDepth_ = 0;
    int underlined_ = 0;
    int preformatted_ = 0;
};

} // namespace ombrivane
