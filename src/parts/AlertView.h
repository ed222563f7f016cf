#pragma once

#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Screen.h"

#include <string>

namespace ombrivane {

/// A message over everything, with the one button "Dismiss", which only closes it.
class AlertView final : public Screen {
public:
    AlertView(std::string titleText, std::string messageText);

    Derived<std::string> title;
    Derived<std::string> message;
    Derived<std::string> buttonText{fields, "buttonText", [] { return std::string("Dismiss"); }};
    Action<> button{*this, "button", [this] { dismiss(); }};
};

} // namespace ombrivane
