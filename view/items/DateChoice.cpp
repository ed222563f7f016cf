#include "items/DateChoice.h"

#include "adapters/ScreenAdapter.h"

namespace ombrivane::view {
namespace {

std::optional<Day> read(const QString& day) { return Day::parse(day.toStdString()); }

} // namespace

QString DateChoice::textOf(std::optional<Day> day) {
    return day ? QString::fromStdString(day->text()) : QString();
}

QStringList DateChoice::entries(const DateWheels::Wheel& wheel) {
    QStringList texts;
    for (const auto& entry : wheel.entries)
        texts.append(shown(entry));
    return texts;
}

void DateChoice::setLimits(std::optional<Day> earliest, std::optional<Day> latest) {
    if (earliest == earliest_ && latest == latest_) return;
    earliest_ = earliest;
    latest_ = latest;
    wheels_ = DateWheels(earliest.value_or(Day()), latest);
    wheels_.choose(chosen_);
    emit changed();
}

void DateChoice::setEarliest(const QString& day) { setLimits(read(day), latest_); }

void DateChoice::setLatest(const QString& day) { setLimits(earliest_, read(day)); }

void DateChoice::setDay(const QString& day) {
    chosen_ = read(day);
    wheels_.choose(chosen_);
    emit changed();
}

void DateChoice::turnYear(int index) {
    wheels_.turnYear(index);
    emit changed();
}

void DateChoice::turnMonth(int index) {
    wheels_.turnMonth(index);
    emit changed();
}

void DateChoice::turnDay(int index) {
    wheels_.turnDay(index);
    emit changed();
}

} // namespace ombrivane::view
