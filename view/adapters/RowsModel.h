#pragma once

#include "keyed/Rows.h"
#include "keyed/Screen.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <memory>
#include <vector>

namespace ombrivane::view {

/// A list of the core for a view: one role `row`, the adapter of a row screen, made when it is drawn. Rows
/// come and go by their identity; the model is never reset.
class RowsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(int count READ count NOTIFY countChanged FINAL)

public:
    RowsModel(std::shared_ptr<Screen> owner, Rows& rows);

    int count() const { return static_cast<int>(identities_.size()); }
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : count(); }
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// The position of the row with this identity, -1 where there is none.
    Q_INVOKABLE int positionOf(const QString& identity) const;

    Q_SIGNAL void countChanged();

private:
    void follow();
    /// Adapters keep their words: in another language each row gets another one.
    void speakAgain();
    bool sharesNone(const std::vector<RowIdentity>& next) const;
    /// Other rows in the places of those that stand there, as offers follow their placeholders: what is drawn
    /// stays and shows the new ones.
    void exchange(const std::vector<RowIdentity>& next);
    void removeMissing(const std::vector<RowIdentity>& next);
    void insertNew(const std::vector<RowIdentity>& next);

    std::shared_ptr<Screen> owner_;
    Rows& rows_;
    std::vector<RowIdentity> identities_;
    Subscription watch_;
    Subscription language_;
};

} // namespace ombrivane::view
