#pragma once

#include "Receipts.h"

#include <QObject>
#include <QVariantMap>

namespace ombrivane::demo {

/// What the customer of the wallet owns: a balance, and the receipts. On the main thread.
class WalletAccount : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the program has one")
    /// In whole units of the currency; what the component is told.
    Q_PROPERTY(double balance READ balance NOTIFY balanceChanged FINAL)
    /// The same, grouped as the region does: "NPR 250,000.00".
    Q_PROPERTY(QString balanceText READ balanceText NOTIFY balanceChanged FINAL)
    /// What the wallet's own words are in: "en", "ne", ...
    Q_PROPERTY(QString language READ language NOTIFY localeChanged FINAL)
    /// Whether that is written from the right.
    Q_PROPERTY(bool rightToLeft READ isRightToLeft NOTIFY localeChanged FINAL)
    Q_PROPERTY(ombrivane::demo::Receipts* receipts READ receipts CONSTANT FINAL)

public:
    explicit WalletAccount(double balance) : balance_(balance) {}

    double balance() const { return balance_; }
    QString balanceText() const { return amountText(locale_, QStringLiteral("NPR"), balance_); }
    Receipts* receipts() { return &receipts_; }
    QString language() const { return locale_.name().section('_', 0, 0); }
    bool isRightToLeft() const { return locale_.textDirection() == Qt::RightToLeft; }
    void setLocale(const QLocale& locale);

    /// A reservation, as it was handed over (JSON). Its token is let go of here.
    Q_INVOKABLE void keep(const QString& reservation);
    /// The component closed with an error, in its words.
    Q_INVOKABLE void end(const QString& error);
    /// An event of the component: what a wallet has to know of besides is kept as a card.
    Q_INVOKABLE void hear(const QVariantMap& event);
    /// Takes what the card costs from the balance, once. @return whether the balance reached
    Q_INVOKABLE bool pay(int row);
    Q_INVOKABLE void fold(int row) { receipts_.fold(row); }

    Q_SIGNAL void balanceChanged();
    Q_SIGNAL void localeChanged();
    /// A reservation was kept, by the number that the airline knows.
    Q_SIGNAL void kept(const QString& number);

private:
    void complain(const QString& title, const QString& detail);

    double balance_;
    QLocale locale_;
    Receipts receipts_;
};

/// What was handed over, without what nobody may see or write.
Json withoutToken(Json dictionary);

} // namespace ombrivane::demo
