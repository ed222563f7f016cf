#include "adapters/MonthAdapter.h"

#include "dates/DateFormatter.h"

namespace ombrivane::view {
namespace {

/// What stands before the first day of a month.
bool isFiller(const CalendarCell& cell) { return cell.day < 0; }

} // namespace

QString DayAdapter::label() const {
    const auto day = Day::parse(cell_.date);
    return day ? shown(formatDay(*day, dayPattern::calendar)) : QString();
}

void DayAdapter::update(const CalendarCell& cell, bool fromPrevious, bool toNext) {
    if (cell == cell_ && fromPrevious == joinsPrevious_ && toNext == joinsNext_) return;
    cell_ = cell;
    joinsPrevious_ = fromPrevious;
    joinsNext_ = toNext;
    emit changed();
}

MonthAdapter::MonthAdapter(std::shared_ptr<Screen> month) : MonthProperties(std::move(month)) {
    for (const auto& cell : core().cells.get()) {
        if (!isFiller(cell))
            days_.append(std::make_unique<DayAdapter>(cell, this).release());
        else if (days_.isEmpty())
            ++firstColumn_;
    }
    update();
    watch_ = core().cells.observe([this] { update(); });
}

void MonthAdapter::update() {
    const auto cells = core().cells.get();
    qsizetype day = 0;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (isFiller(cells[i])) continue;
        const bool fromPrevious = cells[i].selected && i > 0 && cells[i - 1].inRange;
        const bool toNext = cells[i].selected && i + 1 < cells.size() && cells[i + 1].inRange;
        days_[day++]->update(cells[i], fromPrevious, toNext);
    }
}

} // namespace ombrivane::view
