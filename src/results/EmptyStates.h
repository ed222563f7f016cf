#pragma once

#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Screen.h"
#include "words/Caption.h"

#include <functional>
#include <string>

namespace ombrivane {

/// No offer exists, or the filter left none.
class NoFlightRecommendationsView final : public Screen {
public:
    NoFlightRecommendationsView(bool isFiltered, std::function<void()> callback) :
        Screen("NoFlightRecommendationsView"),
        filtered(fields, "filtered", isFiltered),
        button(*this, "button", std::move(callback)) {}

    Published<bool> filtered;
    Caption title{fields, "title", Text::resultsSorry};
    Caption text{fields, "text", Text::resultsNothingFound};
    Derived<std::string> buttonText{fields, "buttonText", [this] {
                                        return said(filtered ? Text::resultsModifyFilter
                                                             : Text::resultsModifySearch);
                                    }};
    Action<> button;
};

/// The last search failed for connectivity.
class NoInternetConnectionView final : public Screen {
public:
    /// @param callback searches once more
    explicit NoInternetConnectionView(std::function<void()> callback) :
        Screen("NoInternetConnectionView"), button(*this, "button", std::move(callback)) {}

    Caption title{fields, "title", Text::resultsOfflineTitle};
    Caption text{fields, "text", Text::resultsOffline};
    Caption buttonText{fields, "buttonText", Text::resultsTryAgain};
    Action<> button;
};

} // namespace ombrivane
