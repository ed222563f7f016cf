#pragma once

#include "richtext/RuleParagraph.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <utility>
#include <vector>

namespace ombrivane::view {

/// The paragraphs of the fare rules, of which there may be tens of thousands: `content` is made when it is
/// drawn.
class ParagraphsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit ParagraphsModel(std::vector<RuleParagraph> paragraphs) : paragraphs_(std::move(paragraphs)) {}

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Other paragraphs in the place of all.
    void show(std::vector<RuleParagraph> paragraphs);

private:
    std::vector<RuleParagraph> paragraphs_;
};

} // namespace ombrivane::view

/// The paragraphs that a screen derives.
#define OMBRIVANE_PARAGRAPHS(name, source)                                                                   \
    Q_PROPERTY(ombrivane::view::ParagraphsModel* name READ name CONSTANT FINAL)                              \
public:                                                                                                      \
    ombrivane::view::ParagraphsModel* name() { return &name##Model_; }                                       \
                                                                                                             \
private:                                                                                                     \
    ombrivane::view::ParagraphsModel name##Model_{(source).get()};                                           \
    ombrivane::Subscription name##Watch_ = watch(source, [this] { name##Model_.show((source).get()); });
