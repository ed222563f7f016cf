#include "items/DateChoice.h"

#include "platform/Platform.h"

#include <QLocale>

#include <algorithm>

namespace ombrivane::view {
namespace {

/// No document is valid for longer.
constexpr int yearsAhead = 30;

QDate read(const QString& day) { return QDate::fromString(day, Qt::ISODate); }

} // namespace

void DateChoice::setEarliest(const QString& day) {
    const QDate date = read(day);
    if (!date.isValid() || date == earliest_) return;
    earliest_ = date;
    emit changed();
}

void DateChoice::setLatest(const QString& day) {
    const QDate date = read(day);
    if (date == latest_) return;
    latest_ = date;
    emit changed();
}

void DateChoice::setDay(const QString& day) {
    chosen_ = read(day);
    emit changed();
}

QDate DateChoice::lastDay() const { return latest_.isValid() ? latest_ : earliest_.addYears(yearsAhead); }

QDate DateChoice::date() const {
    if (chosen_.isValid()) return std::max(earliest_, std::min(chosen_, lastDay()));
    return latest_.isValid() ? earliest_.addYears((latest_.year() - earliest_.year()) / 2) : earliest_;
}

QStringList DateChoice::years() const {
    QStringList years;
    for (int year = earliest_.year(); year <= lastDay().year(); ++year)
        years.append(QString::number(year));
    return years;
}

QStringList DateChoice::months() const {
    const QLocale locale(QString::fromStdString(platform().localization->locale()));
    QStringList months;
    for (int month = 1; month <= 12; ++month)
        months.append(locale.standaloneMonthName(month, QLocale::ShortFormat));
    return months;
}

QStringList DateChoice::days() const {
    QStringList days;
    for (int day = 1; day <= date().daysInMonth(); ++day)
        days.append(QString::number(day));
    return days;
}

void DateChoice::turnYear(int index) { choose(earliest_.year() + index, date().month(), date().day()); }

void DateChoice::turnMonth(int index) { choose(date().year(), index + 1, date().day()); }

void DateChoice::turnDay(int index) { choose(date().year(), date().month(), index + 1); }

void DateChoice::choose(int year, int month, int day) {
    const QDate first(year, month, 1);
    chosen_ = first.addDays(std::min(day, first.daysInMonth()) - 1);
    emit changed();
}

} // namespace ombrivane::view
