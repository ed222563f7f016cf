#pragma once

#include <cstddef>
#include <string>

namespace ombrivane::bench {

/// The service's answer to a one-way search: `offers` offers with the whole attribute tree, about 7 KB each,
/// in no order of price. The same bytes every time.
std::string searchAnswer(std::size_t offers);

/// The same journeys as another service would send them: without what is optional, laid out with white space,
/// its letters beyond ASCII escaped. About 5 KB each.
std::string sparseAnswer(std::size_t offers);

} // namespace ombrivane::bench
