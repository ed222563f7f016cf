#pragma once

#include "keyed/Field.h"
#include "keyed/Screen.h"

#include <string>

namespace ombrivane {

/// The placeholder of a form for several cities. The tab bar never leads here.
class MultiCityView final : public Screen {
public:
    MultiCityView() : Screen("MultiCityView") {}

    Published<std::string> originText{fields, "originText"};
    Published<std::string> destinationText{fields, "destinationText"};
    Published<std::string> departureDateText{fields, "departureDateText"};
    Published<std::string> nationalityText{fields, "nationalityText"};
    Published<std::string> profileText{fields, "profileText", "1, All Class"};
};

} // namespace ombrivane
