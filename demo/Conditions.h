#pragma once

#include <QLocale>
#include <QObject>
#include <QQmlEngine>
#include <QStringList>

namespace ombrivane::demo {

/// What the wallet and the component stand in: how the device looks and speaks, the wallet's brand, and what
/// its customer meets. Several at once. Each change says in one line when it is felt.
class Conditions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the program has one")
    /// "light", "dark", or "device" for what the device says.
    Q_PROPERTY(QString look READ look WRITE setLook NOTIFY changed FINAL)
    /// Of all letters; 0 for what the device says.
    Q_PROPERTY(double textScale READ textScale WRITE setTextScale NOTIFY changed FINAL)
    /// A tag, or "device"; empty for English.
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY changed FINAL)
    /// The position in the wallet's brands.
    Q_PROPERTY(int brand READ brand WRITE setBrand NOTIFY changed FINAL)
    /// The names of the troubles that are on.
    Q_PROPERTY(QStringList on READ on NOTIFY changed FINAL)
    /// The names of the brands.
    Q_PROPERTY(QStringList brands READ brandNames CONSTANT FINAL)
    /// The names of all troubles.
    Q_PROPERTY(QStringList troubles READ troubles CONSTANT FINAL)
    /// Why some troubles are not possible; empty where all are.
    Q_PROPERTY(QString reason READ reason CONSTANT FINAL)
    /// What the last change does, and when.
    Q_PROPERTY(QString said READ said NOTIFY changed FINAL)

public:
    /// @param ownService whether the booking service is one that can be told what to do
    explicit Conditions(bool ownService) : ownService_(ownService) {}

    QString look() const { return look_; }
    double textScale() const { return textScale_; }
    QString language() const { return language_; }
    int brand() const { return brand_; }
    QStringList on() const { return on_; }
    QStringList brandNames() const;
    QStringList troubles() const;
    /// What a customer reads of a trouble.
    Q_INVOKABLE QString label(const QString& trouble) const;
    /// Whether it can be turned on here.
    Q_INVOKABLE bool isPossible(const QString& trouble) const;
    QString reason() const;
    QString said() const { return said_; }

    void setLook(const QString& look);
    void setTextScale(double scale);
    void setLanguage(const QString& language);
    void setBrand(int brand);
    /// Turns a trouble on or off; one that is not possible stays off.
    Q_INVOKABLE void turn(const QString& trouble, bool on);

    /// What is on from the start, as the command line says; nothing is said of it.
    void begin(const QStringList& on);
    /// Whether no request may leave the device.
    bool isOffline() const;
    /// What the booking service is to do.
    QStringList scenarios() const;

    Q_SIGNAL void changed();
    /// The troubles that are on are others.
    Q_SIGNAL void turned();

private:
    void say(const QString& line);

    bool ownService_;
    QString look_ = QStringLiteral("device");
    double textScale_ = 0;
    QString language_;
    int brand_ = 0;
    QStringList on_;
    QString said_;
};

} // namespace ombrivane::demo
