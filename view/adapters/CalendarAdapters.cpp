#include "adapters/CalendarAdapters.h"

#include "support/DateFormatter.h"

namespace ombrivane::view {

QString DayAdapter::label() const {
    const auto date = parseDate(cell_.date, datePattern::wire);
    return date ? shown(formatDate(*date, datePattern::calendar)) : QString();
}

void DayAdapter::update(const CalendarCell& cell, bool fromPrevious, bool toNext) {
    if (cell == cell_ && fromPrevious == joinsPrevious_ && toNext == joinsNext_) return;
    cell_ = cell;
    joinsPrevious_ = fromPrevious;
    joinsNext_ = toNext;
    emit changed();
}

MonthAdapter::MonthAdapter(std::shared_ptr<Screen> month) : ScreenAdapter(std::move(month)) {
    for (const auto& cell : core().cells.get())
        days_.append(std::make_unique<DayAdapter>(cell, this).release());
    update();
    watch_ = core().cells.observe([this] { update(); });
}

void MonthAdapter::update() {
    const auto cells = core().cells.get();
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const bool fromPrevious = cells[i].selected && i > 0 && cells[i - 1].inRange;
        const bool toNext = cells[i].selected && i + 1 < cells.size() && cells[i + 1].inRange;
        days_[static_cast<qsizetype>(i)]->update(cells[i], fromPrevious, toNext);
    }
}

QString CalendarAdapter::dayName(int weekday) const {
    return shown(core().dayNames.get().at(static_cast<std::size_t>(weekday)));
}

} // namespace ombrivane::view
