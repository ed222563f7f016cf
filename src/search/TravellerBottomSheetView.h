#pragma once

#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Rows.h"
#include "keyed/Screen.h"
#include "search/MainViewModel.h"

#include <string>

namespace ombrivane {

/// The sheet of travellers and cabin class.
class TravellerBottomSheetView final : public Screen {
public:
    explicit TravellerBottomSheetView(MainViewModel& model);

    Binding<std::string> travellerTextField;
    Binding<std::string> adult;
    Binding<std::string> child;
    Binding<std::string> infant;
    Binding<std::string> cabinClass;
    Derived<std::string> heading;
    Derived<std::string> subHeading;
    Derived<std::string> cabinHeading;
    Derived<std::string> doneText;
    /// Adults, children, infants.
    Rows steppers;
    /// The radio group of the cabin classes.
    Rows cabins;
    Action<> done;
};

} // namespace ombrivane
