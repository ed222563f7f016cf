#pragma once

#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Rows.h"
#include "keyed/Screen.h"
#include "records/Airport.h"
#include "records/KeyedRecords.h"
#include "services/AirportSearchProvider.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ombrivane {

/// One row of an airport list.
class FlightListItemView final : public Screen {
public:
    FlightListItemView(const Airport& airport, std::function<void()> choose);

    Derived<std::string> city;
    Derived<std::string> code;
    Derived<std::string> name_;
    Derived<std::string> country;
    Derived<std::string> mainText;
    Action<> tap;
};

/// What both airport screens share: the popular airports at every appearance and a search at every change of
/// the text, without delay and without a least length. The last answer to arrive wins; an error leaves the
/// list as it stood.
class AirportSearch : public Screen {
public:
    void appear() override { searchFor(""); }

    Published<std::vector<Airport>> airports{fields, "airports"};
    Derived<std::string> placeholder;
    Derived<std::string> heading{fields, "heading", [] { return std::string("Popular Destination"); }};
    Rows rows;
    /// The customer changed the text of the search field.
    Action<std::string> type;
    Action<> close;

    /// How an airport stands in a field of the form.
    static std::string describe(const Airport& airport);

protected:
    AirportSearch(std::string_view name, std::string_view textKey, const char* placeholderText);

    /// Which of the airports found are shown.
    virtual std::vector<Airport> shown(std::vector<Airport> found) const { return found; }
    virtual void choose(const Airport& airport) = 0;
    virtual void leave() = 0;

    Published<std::string> text;

private:
    void searchFor(const std::string& query);

    AirportSearchProvider airportsProvider_;
};

} // namespace ombrivane
