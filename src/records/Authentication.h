#pragma once

#include "records/Wire.h"

#include <string>

namespace ombrivane {

/// What the token request yields.
struct Authentication {
    std::string tokenType;
    std::string accessToken;

    bool operator==(const Authentication&) const = default;

    static constexpr auto wire = fields(field("tokenType", &Authentication::tokenType),
                                        field("accessToken", &Authentication::accessToken));
};

} // namespace ombrivane
