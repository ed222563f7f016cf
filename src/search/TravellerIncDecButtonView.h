#pragma once

#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Screen.h"
#include "search/TravellerRules.h"

#include <string>

namespace ombrivane {

/// The stepper of one kind of travellers.
class TravellerIncDecButtonView final : public Screen {
public:
    TravellerIncDecButtonView(TravellerKind kind, const Field<std::string>& adults,
                              const Field<std::string>& children, const Field<std::string>& infants);

    Binding<std::string> adult;
    Binding<std::string> child;
    Binding<std::string> infant;
    Derived<std::string> category;
    Derived<std::string> categoryDetail;
    Derived<std::string> numberValue;
    /// Whether the controls are drawn as active.
    Derived<bool> mayIncrement;
    Derived<bool> mayDecrement;
    Action<> increment;
    Action<> decrement;

private:
    TravellerCounts counts() const;
    void write(const TravellerCounts& counts);

    TravellerKind kind_;
};

} // namespace ombrivane
