#pragma once

#include "dates/Calendar.h"
#include "dates/DateValue.h"
#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Rows.h"
#include "keyed/Screen.h"
#include "words/Caption.h"
#include "words/Spoken.h"

#include <memory>
#include <string>
#include <vector>

namespace ombrivane {

/// What both calendars share: six months from this one on, the cells, the texts, Done and close. A calendar
/// states what a tap on a day does, which days are chosen and what Done fills.
class TravelCalendar : public Screen {
public:
    static constexpr int shownMonths = 6;

    /// One month as it is drawn.
    class Month final : public Screen {
    private:
        TravelCalendar& calendar_;
        const int offset_;

    public:
        Month(TravelCalendar& calendar, int offset);

        Derived<std::string> title{fields, "title", [this] { return describe(); }};
        Derived<std::vector<CalendarCell>> cells{fields, "cells", [this] { return draw(); }};

    private:
        int monthsAhead() const { return calendar_.currentMonth.get() + offset_; }
        std::string describe() const;
        std::vector<CalendarCell> draw() const;
        std::vector<std::string> labelDays() const;

        std::vector<DateValue> grid_ = monthGrid(calendar::today(), monthsAhead());
        Spoken<std::vector<std::string>> labels_{[this] { return labelDays(); }};
    };

    void appear() override;

    Published<Day> currentDate{fields, "currentDate", calendar::today()};
    Published<int> currentMonth{fields, "currentMonth", 0};
    Published<int> scrollToIndex{fields, "scrollToIndex", 1};
    Caption title{fields, "title", Text::calendarTitle};
    Derived<std::vector<std::string>> dayNames{fields, "dayNames", [] {
                                                   return std::vector<std::string>{
                                                       said(Text::calendarSunday),
                                                       said(Text::calendarMonday),
                                                       said(Text::calendarTuesday),
                                                       said(Text::calendarWednesday),
                                                       said(Text::calendarThursday),
                                                       said(Text::calendarFriday),
                                                       said(Text::calendarSaturday)};
                                               }};
    Derived<std::string> chosenText{fields, "chosenText", [this] { return describeChosen(); }};
    Rows months{
        *this,
        "months",
        [] { return std::size_t{shownMonths}; },
        [this](std::size_t index) { return std::make_shared<Month>(*this, static_cast<int>(index)); }};
    /// A tap on the day given as "yyyy-MM-dd". A past day does nothing.
    Action<std::string> tapDay{*this, "tapDay", [this](const std::string& day) { tap(day); }};
    Action<> done{*this, "done", [this] { finish(); }};
    Action<> close{*this, "close", [this] { dismiss(); }};

protected:
    explicit TravelCalendar(std::string_view name) : Screen(name) {}

    virtual void choose(Day day) = 0;
    virtual void fillEmptyFields() = 0;
    virtual std::string describeChosen() const = 0;
    /// The first and the last chosen day; the same one twice where there is one only.
    virtual std::pair<Day, Day> chosen() const = 0;
    virtual void afterDone() {}

private:
    void tap(const std::string& day);
    void finish();
};

} // namespace ombrivane
