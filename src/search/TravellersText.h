#pragma once

#include <string>

namespace ombrivane {

/// What the form shows for the text of travellers, "2, Economy": the same in the customer's language; a text
/// of another form as it stands.
std::string shownTravellers(const std::string& text);

} // namespace ombrivane
