#pragma once

#include "base/Json.h"

#include <QAbstractListModel>
#include <QList>
#include <QLocale>
#include <QQmlEngine>

#include <optional>

namespace ombrivane::demo {

/// One card of the wallet: a reservation, or what went wrong.
struct Receipt {
    bool wentWrong = false;
    QString title;     ///< the number that the airline knows, or what went wrong in a few words
    QString detail;    ///< of what went wrong
    Json dictionary;   ///< as it was handed over, but for the token, which is never kept here
    bool paid = false; ///< taken from the balance
    bool unfolded = false;
};

/// The cards of the wallet, the newest first. Texts are written by the wallet's locale when they are read.
class Receipts : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS

public:
    /// What a card is asked for, by the name that QML knows it by.
    enum Role {
        WentWrong = Qt::UserRole,
        Title,
        Detail,
        Route,
        Dates,
        Travellers,
        Amount,
        Paid,
        Unfolded,
        Handed
    };

    explicit Receipts(QObject* parent = nullptr) : QAbstractListModel(parent) {}

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// The newest from here on; the oldest goes where there are too many.
    void add(Receipt receipt);
    /// What it costs, in whole units; nothing where nothing is to be paid (any more), or there is no such
    /// card.
    std::optional<double> due(int row) const;
    void markPaid(int row);
    /// Shows what was handed over, or hides it again.
    void fold(int row);
    void setLocale(const QLocale& locale);

private:
    bool has(int row) const { return row >= 0 && row < rowCount(); }
    void tell(int row);

    QList<Receipt> receipts_;
    QLocale locale_;
};

/// An amount as a customer reads it: "NPR 250,000.00".
QString amountText(const QLocale& locale, const QString& currency, double amount);

} // namespace ombrivane::demo
