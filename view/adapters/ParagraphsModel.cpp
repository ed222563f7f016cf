#include "adapters/ParagraphsModel.h"

#include "adapters/ScreenAdapter.h"

#include <algorithm>

namespace ombrivane::view {
namespace {

enum Role { content = Qt::UserRole + 1, listItem, underlined, underlines };

QString textOf(const RuleParagraph& paragraph) {
    QString text;
    for (const auto& run : paragraph.runs)
        text += shown(run.text);
    return text;
}

/// A heading of the rules is underlined as a whole.
bool isHeading(const RuleParagraph& paragraph) {
    return !paragraph.runs.empty() && std::all_of(paragraph.runs.begin(),
                                                  paragraph.runs.end(),
                                                  [](const auto& run) { return run.underlined; });
}

/// Where in the text of a paragraph that is no heading underlined stretches begin, and their lengths, in
/// turn.
QList<int> stretchesOf(const RuleParagraph& paragraph) {
    QList<int> stretches;
    if (isHeading(paragraph)) return stretches;
    qsizetype position = 0;
    for (const auto& run : paragraph.runs) {
        const qsizetype length = shown(run.text).size();
        if (run.underlined) stretches << static_cast<int>(position) << static_cast<int>(length);
        position += length;
    }
    return stretches;
}

} // namespace

int ParagraphsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(paragraphs_.size());
}

QVariant ParagraphsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const auto& paragraph = paragraphs_.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case content:
        return textOf(paragraph);
    case listItem:
        return paragraph.kind == RuleParagraph::Kind::listItem;
    case underlined:
        return isHeading(paragraph);
    case underlines:
        return QVariant::fromValue(stretchesOf(paragraph));
    default:
        return {};
    }
}

QHash<int, QByteArray> ParagraphsModel::roleNames() const {
    return {
        {content, "content"}, {listItem, "listItem"}, {underlined, "underlined"}, {underlines, "underlines"}};
}

void ParagraphsModel::show(std::vector<RuleParagraph> paragraphs) {
    beginResetModel();
    paragraphs_ = std::move(paragraphs);
    endResetModel();
}

} // namespace ombrivane::view
