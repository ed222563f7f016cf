#pragma once

#include "base/Api.h"

#include <optional>
#include <string>

namespace ombrivane {

/// How a customer reaches the wallet's support from the strip under the search form. Each is a telephone
/// number with its country, as it is shown: "+977 980 0000 000"; what is empty is not offered. Those of the
/// component itself are of a range that is not given out to anybody.
struct OMBRIVANE_API SupportContacts {
    std::string mobile = "+977 980 0000 000"; ///< is called
    std::optional<std::string> viber{};       ///< absent: `mobile`
    std::optional<std::string> whatsapp{};    ///< absent: `mobile`
    std::string landLine = "+977 1 5550 100"; ///< is called

    /// Member by member.
    bool operator==(const SupportContacts&) const = default;

    /// Those of the process; a computation that is being tracked follows them. Main thread.
    static const SupportContacts& current();
    /// Takes effect at once, also while the component is open. Main thread.
    static void use(SupportContacts contacts);
};

} // namespace ombrivane
