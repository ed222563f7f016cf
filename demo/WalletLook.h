#pragma once

#include "Brands.h"
#include "WalletWords.h"

#include <QColor>
#include <QObject>
#include <QQmlEngine>

namespace ombrivane::demo {

/// What the wallet's own items are drawn in, and their words.
class WalletLook : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// The position in the brands; any other for what is no part of a wallet.
    Q_PROPERTY(int brand MEMBER brand_ NOTIFY changed FINAL)
    Q_PROPERTY(bool dark MEMBER dark_ NOTIFY changed FINAL)
    Q_PROPERTY(double textScale MEMBER textScale_ NOTIFY changed FINAL)
    Q_PROPERTY(QString language MEMBER language_ NOTIFY changed FINAL)
    Q_PROPERTY(QString name READ name NOTIFY changed FINAL)
    Q_PROPERTY(ombrivane::demo::WalletWords words READ words NOTIFY changed FINAL)
    Q_PROPERTY(QColor canvas READ canvas NOTIFY changed FINAL)
    Q_PROPERTY(QColor card READ card NOTIFY changed FINAL)
    Q_PROPERTY(QColor ink READ ink NOTIFY changed FINAL)
    Q_PROPERTY(QColor quiet READ quiet NOTIFY changed FINAL)
    Q_PROPERTY(QColor alarm READ alarm NOTIFY changed FINAL)
    Q_PROPERTY(QColor accent READ accent NOTIFY changed FINAL)
    Q_PROPERTY(QColor accentText READ accentText NOTIFY changed FINAL)
    Q_PROPERTY(QColor hairline READ hairline NOTIFY changed FINAL)
    Q_PROPERTY(double radius READ radius NOTIFY changed FINAL)
    /// Letters that the wallet's family lacks are the device's.
    Q_PROPERTY(QString family READ family NOTIFY changed FINAL)

public:
    explicit WalletLook(QObject* parent = nullptr) : QObject(parent) {}

    QString name() const { return shown().name; }
    WalletWords words() const { return WalletWords::of(language_); }
    QColor canvas() const { return colours().canvas; }
    QColor card() const { return colours().card; }
    QColor ink() const { return colours().ink; }
    QColor quiet() const { return colours().quiet; }
    QColor alarm() const { return colours().primary; }
    QColor accent() const { return colours().secondary; }
    QColor accentText() const { return colours().secondaryText; }
    QColor hairline() const { return colours().hairline; }
    double radius() const { return shown().appearance.cornerRadius.value_or(0); }
    QString family() const;
    /// What a text of any language is drawn in.
    Q_INVOKABLE QString familyOf(const QString& text) const;

    Q_SIGNAL void changed();

private:
    const Brand& shown() const;
    const view::Colours& colours() const;

    int brand_ = 0;
    bool dark_ = false;
    double textScale_ = 1;
    QString language_;
};

} // namespace ombrivane::demo
