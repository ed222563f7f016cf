#pragma once

#include <cstddef>
#include <string>

namespace ombrivane::bench {

/// The service's answer to a one-way search: `offers` offers with the whole attribute tree, about 7 KB each,
/// in no order of price. The same bytes every time.
std::string searchAnswer(std::size_t offers);

} // namespace ombrivane::bench
