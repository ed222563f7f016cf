// The countries that a customer may be a national of.
#pragma once

#include "sandbox/Json.h"

#include <string_view>

namespace ombrivane::sandbox {

/// The answer's array, in the order of names: id, name, nationality, short_name, country_code.
Json countriesJson();

/// Whether a country has that two-letter code, in capitals.
bool isCountryCode(std::string_view shortName);

} // namespace ombrivane::sandbox
