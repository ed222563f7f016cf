#pragma once

#include "keyed/Action.h"
#include "keyed/Constant.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Screen.h"

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
    Constant title{fields, "title", "We’re Sorry"};
    Constant text{fields, "text", "No flight found for the selected dates ! Kindly choose different date."};
    Derived<std::string> buttonText{
        fields, "buttonText", [this] { return std::string(filtered ? "Modify Filter" : "Modify Search"); }};
    Action<> button;
};

/// The last search failed for connectivity.
class NoInternetConnectionView final : public Screen {
public:
    NoInternetConnectionView() : Screen("NoInternetConnectionView") {}

    Constant title{fields, "title", "We Lost You!"};
    Constant text{fields,
                  "text",
                  "No internet connection. Make sure wifi or cellular data is turned on and then try again."};
};

} // namespace ombrivane
