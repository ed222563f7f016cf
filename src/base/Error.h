#pragma once

#include <string>

namespace ombrivane {

/// A failure that is part of life: it travels through completions and, at the boundary, to the host.
struct Error {
    std::string domain; ///< who failed: one of `errorDomain`
    int code = 0;       ///< tells failures of one domain apart
    /// What a customer may read. Never holds a secret, a token or personal data.
    std::string localizedDescription;
    /// What a developer wants to know besides, for instance the key that an answer lacked: keys, never
    /// values. Not shown; the diagnostics hear of it.
    std::string developerDescription = {};

    /// Equal in all four.
    bool operator==(const Error&) const = default;
};

} // namespace ombrivane
