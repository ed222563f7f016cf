#pragma once

#include "dates/DateWheels.h"

#include <QQmlEngine>
#include <QStringList>

namespace ombrivane::view {

/// The three wheels of a date field. Days are given and told as "yyyy-MM-dd", whatever the wheels show.
class DateChoice : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString earliest READ earliest WRITE setEarliest NOTIFY changed FINAL)
    /// Empty for a date that may lie far ahead.
    Q_PROPERTY(QString latest READ latest WRITE setLatest NOTIFY changed FINAL)
    Q_PROPERTY(QString day READ day WRITE setDay NOTIFY changed FINAL)
    Q_PROPERTY(QStringList years READ years NOTIFY changed FINAL)
    Q_PROPERTY(QStringList months READ months NOTIFY changed FINAL)
    Q_PROPERTY(QStringList days READ days NOTIFY changed FINAL)
    Q_PROPERTY(int yearIndex READ yearIndex NOTIFY changed FINAL)
    Q_PROPERTY(int monthIndex READ monthIndex NOTIFY changed FINAL)
    Q_PROPERTY(int dayIndex READ dayIndex NOTIFY changed FINAL)

public:
    explicit DateChoice(QObject* parent = nullptr) : QObject(parent) {}

    QString earliest() const { return textOf(earliest_); }
    void setEarliest(const QString& day);
    QString latest() const { return textOf(latest_); }
    void setLatest(const QString& day);
    QString day() const { return textOf(wheels_.day()); }
    /// An empty text chooses a first proposal.
    void setDay(const QString& day);

    QStringList years() const { return entries(wheels_.years()); }
    QStringList months() const { return entries(wheels_.months()); }
    QStringList days() const { return entries(wheels_.days()); }
    int yearIndex() const { return wheels_.years().index; }
    int monthIndex() const { return wheels_.months().index; }
    int dayIndex() const { return wheels_.days().index; }

    Q_INVOKABLE void turnYear(int index);
    Q_INVOKABLE void turnMonth(int index);
    Q_INVOKABLE void turnDay(int index);

    /// Told after every turn, also when the date stayed, so that a wheel turned too far comes back.
    Q_SIGNAL void changed();

private:
    static QString textOf(std::optional<Day> day);
    static QStringList entries(const DateWheels::Wheel& wheel);
    void setLimits(std::optional<Day> earliest, std::optional<Day> latest);

    std::optional<Day> earliest_;
    std::optional<Day> latest_;
    std::optional<Day> chosen_;
    DateWheels wheels_{Day()};
};

} // namespace ombrivane::view
