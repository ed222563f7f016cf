#pragma once

#include "base/Completion.h"
#include "records/Country.h"

#include <vector>

namespace ombrivane {

/// Fetches the countries of the nationality choice.
class CountryProvider {
public:
    /// Completes with the countries, Nepal, India and China first, and each `shortName` once.
    void fetchCountries(const Completion<std::vector<Country>>& completion) const;
};

} // namespace ombrivane
