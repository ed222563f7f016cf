#include "events/Event.h"

#include <array>

namespace ombrivane {
namespace {

constexpr std::array<std::string_view, 14> eventNames = {"opened",
                                                         "screenShown",
                                                         "searchSent",
                                                         "searchAnswered",
                                                         "bookingOpened",
                                                         "bookingRefused",
                                                         "fareMoved",
                                                         "reservationSent",
                                                         "reservationAnswered",
                                                         "reservationUnknown",
                                                         "uploadSent",
                                                         "uploadAnswered",
                                                         "expired",
                                                         "closed"};
static_assert(eventNames.size() == static_cast<std::size_t>(EventKind::closed) + 1);
constexpr std::array<std::string_view, 4> closerNames = {"customer", "reservation", "error", "host"};

} // namespace

std::string_view nameOf(EventKind kind) { return eventNames.at(static_cast<std::size_t>(kind)); }

std::string_view nameOf(ClosedBy who) { return closerNames.at(static_cast<std::size_t>(who)); }

Json Event::json() const {
    Json object{{"event", nameOf(kind)}, {"opening", opening}};
    if (!screen.empty()) object["screen"] = screen;
    if (offers) object["offers"] = *offers;
    if (took) object["milliseconds"] = took->count();
    if (formerFare) object["formerFare"] = *formerFare;
    if (fare) object["fare"] = *fare;
    if (error) object["error"] = nameOf(*error);
    if (closedBy) object["closedBy"] = nameOf(*closedBy);
    return object;
}

Json EndedCall::json() const {
    Json object{{"endpoint", endpoint}, {"status", status}, {"milliseconds", took.count()}, {"bytes", bytes}};
    if (error) object["error"] = nameOf(*error);
    return object;
}

} // namespace ombrivane
