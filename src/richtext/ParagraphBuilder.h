#pragma once

#include "richtext/RuleParagraph.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace ombrivane {

/// Gathers text into paragraphs: blanks collapse, those at either end go, a paragraph without a visible
/// character is none.
class ParagraphBuilder {
public:
    void add(std::string_view text, bool underlined);
    /// Keeps the blanks, and ends the paragraph with each line.
    void addPreformatted(std::string_view text, bool underlined);

    void endParagraph();
    /// Ends the paragraph; the next one opens a list item.
    void beginItem();
    void endItem();

    /// The paragraphs of a table's row are joined to one, unless the row holds a list or a table. A row ends
    /// with the next one and with its table. Outside of a table a row and a cell are paragraphs like any
    /// other.
    void beginTable();
    void endTable();
    void beginRow();
    void endRow();
    void beginCell();

    /// Everything gathered.
    std::vector<RuleParagraph> take();

private:
    struct Row {
        std::vector<std::size_t> cells; ///< the first paragraph of each
        bool isJoined = true;
    };
    using Table = std::optional<Row>;

    void append(std::string_view text, bool underlined);
    void join(const Row& row);
    void keepRowApart();

    std::vector<RuleParagraph> paragraphs_;
    std::vector<Table> tables_; ///< each with its open row
    RuleParagraph current_;
    bool isVisible_ = false;
    bool opensItem_ = false;
    bool owesBlank_ = false;
    bool blankIsUnderlined_ = false;
};

} // namespace ombrivane
