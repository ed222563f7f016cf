#pragma once

#include "keyed/Screen.h"

#include <memory>
#include <string>
#include <vector>

namespace ombrivane::journey {

/// One screen of the component, freshly made, and how a customer reaches it.
struct CataloguedScreen {
    std::string reached;
    std::shared_ptr<Screen> screen;
};

/// Every screen that is no part and no row of another one, in the order of a booking. None has appeared, so
/// nothing was sent. Needs a platform with a main queue, a clock and a localization.
std::vector<CataloguedScreen> screenCatalogue();

} // namespace ombrivane::journey
