#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace ombrivane::demo {

/// The wallet's own words, in one of the languages that the component speaks.
struct WalletWords {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString balance MEMBER balance FINAL)
    Q_PROPERTY(QString flights MEMBER flights FINAL)
    Q_PROPERTY(QString send MEMBER send FINAL)
    Q_PROPERTY(QString topUp MEMBER topUp FINAL)
    Q_PROPERTY(QString power MEMBER power FINAL)
    Q_PROPERTY(QString bus MEMBER bus FINAL)
    Q_PROPERTY(QString events MEMBER events FINAL)
    Q_PROPERTY(QString notHere MEMBER notHere FINAL)
    Q_PROPERTY(QString receipts MEMBER receipts FINAL)
    Q_PROPERTY(QString none MEMBER none FINAL)
    Q_PROPERTY(QString travellers MEMBER travellers FINAL)
    Q_PROPERTY(QString number MEMBER number FINAL)
    Q_PROPERTY(QString amount MEMBER amount FINAL)
    Q_PROPERTY(QString pay MEMBER pay FINAL)
    Q_PROPERTY(QString paid MEMBER paid FINAL)
    Q_PROPERTY(QString tooLittle MEMBER tooLittle FINAL)
    Q_PROPERTY(QString show MEMBER show FINAL)
    Q_PROPERTY(QString hide MEMBER hide FINAL)

public:
    QString balance{};
    QString flights{};
    QString send{};
    QString topUp{};
    QString power{};
    QString bus{};
    QString events{};
    QString notHere{};
    QString receipts{};
    QString none{};
    QString travellers{};
    QString number{};
    QString amount{};
    QString pay{};
    QString paid{};
    QString tooLittle{};
    QString show{};
    QString hide{};
    QString ended{};         ///< the component closed with an error
    QString unknown{};       ///< a reservation may have been made
    QString unknownAdvice{}; ///< what to do about it
    QString refused{};       ///< a reservation was not made
    QString refusedAdvice{}; ///< what that means

    /// Member by member.
    bool operator==(const WalletWords&) const = default;

    /// Those of "ne" or "ar"; English for every other language.
    static WalletWords of(const QString& language);
};

} // namespace ombrivane::demo
