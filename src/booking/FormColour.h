#pragma once

#include "keyed/Keyed.h"

#include <array>

namespace ombrivane {

/// The colours of the theme that forms decide on.
enum class FormColour { formBorderColor, primaryColor, secondaryColor };

inline constexpr std::array<const char*, 3> formColourNames{
    "formBorderColor", "primaryColor", "secondaryColor"};

/// Read and set by the name of the theme's constant.
template <> struct Keyed<FormColour> {
    static Json toJson(FormColour colour) { return formColourNames.at(static_cast<std::size_t>(colour)); }
    static FormColour fromJson(const Json& json) {
        for (std::size_t i = 0; i < formColourNames.size(); ++i) {
            if (json.is_string() && json.get<std::string>() == formColourNames.at(i))
                return static_cast<FormColour>(i);
        }
        throw KeyedError("wants the name of a colour");
    }
};

} // namespace ombrivane
