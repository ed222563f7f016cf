#pragma once

#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Screen.h"

#include <functional>
#include <string>

namespace ombrivane {

/// One radio row: `CustomRadioButtonFieldView`.
class CustomRadioButtonFieldView final : public Screen {
public:
    CustomRadioButtonFieldView(std::string identity, std::string labelText, std::function<bool()> marked,
                               std::function<void()> choose) :
        Screen("CustomRadioButtonFieldView"),
        id(fields, "id", [identity = std::move(identity)] { return identity; }),
        label(fields, "label", [labelText = std::move(labelText)] { return labelText; }),
        isMarked(fields, "isMarked", std::move(marked)),
        tap(*this, "tap", std::move(choose)) {}

    Derived<std::string> id;
    Derived<std::string> label;
    Derived<bool> isMarked;
    Action<> tap;
};

} // namespace ombrivane
