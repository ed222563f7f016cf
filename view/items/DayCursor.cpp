#include "items/DayCursor.h"

#include "dates/TravelCalendar.h"

#include <algorithm>

namespace ombrivane::view {
namespace {

struct Place {
    int month;
    int number; ///< in its month
    std::string day;
    bool selected;
};

/// Every day that can be chosen, from the first to the last.
std::vector<Place> placesOf(const ScreenAdapter* calendar) {
    std::vector<Place> places;
    if (calendar == nullptr) return places;
    const auto& months = static_cast<const TravelCalendar&>(*calendar->screen()).months;
    for (std::size_t i = 0; i < months.size(); ++i) {
        const auto month = months.row(i);
        for (const auto& cell : static_cast<const TravelCalendar::Month&>(*month).cells.get()) {
            if (cell.selectable) places.push_back({static_cast<int>(i), cell.day, cell.date, cell.selected});
        }
    }
    return places;
}

std::vector<Place>::const_iterator placeOf(const std::vector<Place>& places, const QString& day) {
    return std::find_if(places.begin(), places.end(), [text = day.toStdString()](const Place& place) {
        return place.day == text;
    });
}

} // namespace

void DayCursor::setCalendar(ScreenAdapter* calendar) {
    calendar_ = calendar;
    const auto places = placesOf(calendar);
    auto first =
        std::find_if(places.begin(), places.end(), [](const Place& place) { return place.selected; });
    if (first == places.end()) first = places.begin();
    if (first != places.end()) stand(first->month, first->day);
}

void DayCursor::moveBy(int days) {
    const auto places = placesOf(calendar_);
    const auto now = placeOf(places, day_);
    if (now == places.end()) return;
    const auto last = static_cast<std::ptrdiff_t>(places.size()) - 1;
    const auto then = std::clamp<std::ptrdiff_t>(now - places.begin() + days, 0, last);
    const Place& place = places[static_cast<std::size_t>(then)];
    stand(place.month, place.day);
}

void DayCursor::moveByMonths(int months) {
    const auto places = placesOf(calendar_);
    const auto now = placeOf(places, day_);
    if (now == places.end()) return;
    const int wanted = std::clamp(now->month + months, places.front().month, places.back().month);
    auto then = std::find_if(
        places.begin(), places.end(), [wanted](const Place& place) { return place.month == wanted; });
    while (std::next(then) != places.end() && std::next(then)->month == wanted &&
           std::next(then)->number <= now->number) {
        ++then;
    }
    stand(then->month, then->day);
}

void DayCursor::moveTo(const QString& day) {
    const auto places = placesOf(calendar_);
    const auto place = placeOf(places, day);
    if (place != places.end()) stand(place->month, place->day);
}

void DayCursor::stand(int month, const std::string& day) {
    month_ = month;
    day_ = QString::fromStdString(day);
    emit moved();
}

} // namespace ombrivane::view
