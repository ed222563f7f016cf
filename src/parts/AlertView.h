#pragma once

#include "keyed/Action.h"
#include "keyed/Constant.h"
#include "keyed/Screen.h"
#include "words/Caption.h"

#include <string>

namespace ombrivane {

/// A message over everything, with the one button "Dismiss", which only closes it.
class AlertView final : public Screen {
public:
    AlertView(std::string titleText, std::string messageText) :
        Screen("AlertView"),
        title(fields, "title", std::move(titleText)),
        message(fields, "message", std::move(messageText)) {}

    Constant title;
    Constant message;
    Caption buttonText{fields, "buttonText", Text::alertDismiss};
    Action<> button{*this, "button", [this] { dismiss(); }};
};

} // namespace ombrivane
