#pragma once

#include <QDate>
#include <QQmlEngine>
#include <QStringList>

namespace ombrivane::view {

/// A day between two limits, turned by its year, its month and its day: what the wheels of a date field show.
/// Days are given and told as "yyyy-MM-dd".
class DateChoice : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString earliest READ earliest WRITE setEarliest NOTIFY changed FINAL)
    /// Empty for a date that may lie far ahead.
    Q_PROPERTY(QString latest READ latest WRITE setLatest NOTIFY changed FINAL)
    Q_PROPERTY(QString day READ day WRITE setDay NOTIFY changed FINAL)
    Q_PROPERTY(QStringList years READ years NOTIFY changed FINAL)
    Q_PROPERTY(QStringList months READ months CONSTANT FINAL)
    Q_PROPERTY(QStringList days READ days NOTIFY changed FINAL)
    Q_PROPERTY(int yearIndex READ yearIndex NOTIFY changed FINAL)
    Q_PROPERTY(int monthIndex READ monthIndex NOTIFY changed FINAL)
    Q_PROPERTY(int dayIndex READ dayIndex NOTIFY changed FINAL)

public:
    explicit DateChoice(QObject* parent = nullptr) : QObject(parent) {}

    QString earliest() const { return earliest_.toString(Qt::ISODate); }
    void setEarliest(const QString& day);
    QString latest() const { return latest_.toString(Qt::ISODate); }
    void setLatest(const QString& day);
    QString day() const { return date().toString(Qt::ISODate); }
    /// An empty text chooses a first proposal: the middle of the years between two limits, else the earliest.
    void setDay(const QString& day);

    QStringList years() const;
    QStringList months() const;
    QStringList days() const;
    int yearIndex() const { return date().year() - earliest_.year(); }
    int monthIndex() const { return date().month() - 1; }
    int dayIndex() const { return date().day() - 1; }

    /// Each turns one wheel to an entry. A day that the month lacks becomes its last one, and a date beyond a
    /// limit becomes the limit.
    Q_INVOKABLE void turnYear(int index);
    Q_INVOKABLE void turnMonth(int index);
    Q_INVOKABLE void turnDay(int index);

    /// Told after every turn, also when the date stayed, so that a wheel turned too far comes back.
    Q_SIGNAL void changed();

private:
    QDate lastDay() const;
    QDate date() const;
    void choose(int year, int month, int day);

    QDate earliest_{1900, 1, 1};
    QDate latest_;
    QDate chosen_;
};

} // namespace ombrivane::view
