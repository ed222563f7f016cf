#pragma once

#include "keyed/Action.h"
#include "keyed/Constant.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Rows.h"
#include "keyed/Screen.h"
#include "records/Airport.h"
#include "records/KeyedRecords.h"
#include "services/AirportSearchProvider.h"
#include "words/Caption.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ombrivane {

/// One row of an airport list.
class FlightListItemView final : public Screen {
public:
    FlightListItemView(const Airport& airport, std::function<void()> choose);

    Constant city;
    Constant code;
    Constant name_;
    Constant country;
    Derived<std::string> mainText{fields, "mainText", [this] {
                                      const std::string& named = country.get();
                                      return named.empty() ? city.get() : city.get() + ", " + named;
                                  }};
    Action<> tap;
};

/// What both airport screens share: the popular airports at every appearance and a search at every change of
/// the text, without delay and without a least length. The last answer to arrive wins; an error leaves the
/// list as it stood.
class AirportSearch : public Screen {
public:
    void appear() override { searchFor(""); }

    Published<std::vector<Airport>> airports{fields, "airports"};
    /// An answer is awaited.
    Derived<bool> isLoading{fields, "isLoading", [this] { return awaited_ > 0; }};
    /// What the list answers; empty for the popular airports.
    Published<std::string> answered{fields, "answered"};
    /// The list is that of the popular airports.
    Derived<bool> showsHeading{
        fields, "showsHeading", [this] { return answered->empty() && !airports->empty(); }};
    /// That nothing was found; empty where something was, or nothing was looked for.
    Derived<std::string> nothingText{fields, "nothingText", [this] { return sayNothing(); }};
    /// Why the last answer did not come; empty where it did.
    Published<std::string> errorMessage{fields, "errorMessage"};
    Caption placeholder;
    Caption heading{fields, "heading", Text::airportsPopular};
    /// What stands in the search field. Its key is that of the kind of screen.
    Published<std::string> text;
    Rows rows{*this,
              "rows",
              [this] { return airports->size(); },
              [this](std::size_t index) { return makeRow(airports->at(index)); },
              [this] { return identitiesOf(airports.get(), &Airport::code); }};
    /// The customer changed the text of the search field.
    Action<std::string> type{*this, "type", [this](const std::string& typed) {
                                 text = typed;
                                 searchFor(typed);
                             }};
    Action<> close{*this, "close", [this] { leave(); }};

    /// How an airport stands in a field of the form.
    static std::string describe(const Airport& airport);

protected:
    AirportSearch(std::string_view screenName, std::string_view textKey, Text placeholderText) :
        Screen(screenName), placeholder(fields, "placeholder", placeholderText), text(fields, textKey) {}

    /// Which of the airports found are shown.
    virtual std::vector<Airport> shown(std::vector<Airport> found) const { return found; }
    virtual void choose(const Airport& airport) = 0;
    virtual void leave() = 0;

private:
    void searchFor(const std::string& query);
    void take(const std::string& query, std::vector<Airport> found, const std::optional<Error>& error);
    std::string sayNothing() const;
    std::shared_ptr<Screen> makeRow(const Airport& airport);

    Fields unkeyed_;
    Published<int> awaited_{unkeyed_, "awaited"};
    AirportSearchProvider airportsProvider_;
};

} // namespace ombrivane
