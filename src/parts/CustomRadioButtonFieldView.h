#pragma once

#include "keyed/Action.h"
#include "keyed/Constant.h"
#include "keyed/Derived.h"
#include "keyed/Screen.h"

#include <functional>
#include <string>

namespace ombrivane {

/// One radio row: `CustomRadioButtonFieldView`.
class CustomRadioButtonFieldView final : public Screen {
public:
    CustomRadioButtonFieldView(std::string identity, std::function<std::string()> labelText,
                               std::function<bool()> marked, std::function<void()> choose) :
        Screen("CustomRadioButtonFieldView"),
        id(fields, "id", std::move(identity)),
        label(fields, "label", std::move(labelText)),
        isMarked(fields, "isMarked", std::move(marked)),
        tap(*this, "tap", std::move(choose)) {}

    Constant id;
    Derived<std::string> label;
    Derived<bool> isMarked;
    Action<> tap;
};

} // namespace ombrivane
