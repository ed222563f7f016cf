#pragma once

#include "keyed/Navigator.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QQmlEngine>

#include <memory>
#include <vector>

namespace ombrivane::view {

class ScreenAdapter;

/// The stack of screens for the stage: one row an entry, from the root up, with its page and its adapter. An
/// entry that stays keeps its adapter, so its page stands as it was left.
class StageModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    /// The lowest entry that can be seen: the topmost one that fills the stage.
    Q_PROPERTY(int firstInView READ firstInView NOTIFY changed FINAL)
    Q_PROPERTY(int count READ count NOTIFY changed FINAL)

public:
    /// Follows `navigator`, which must outlive this; nullptr shows nothing.
    void follow(Navigator* navigator);
    /// The engine that makes the pages, where it is known.
    void useEngine(QQmlEngine* engine) { engine_ = engine; }

    int firstInView() const;
    int count() const { return static_cast<int>(entries_.size()); }
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : count(); }
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// The back gesture; false when only the root is left.
    Q_INVOKABLE bool back();

    Q_SIGNAL void changed();

private:
    struct Entry {
        std::shared_ptr<ScreenAdapter> adapter;
        Presentation presentation;
    };
    void update();
    void finishRows();

    QPointer<QQmlEngine> engine_;
    Navigator* navigator_ = nullptr;
    std::vector<Entry> entries_;
    Subscription watch_;
};

} // namespace ombrivane::view
