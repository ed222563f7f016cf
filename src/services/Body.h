#pragma once

#include "base/Json.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ombrivane {

/// The JSON object of a request, its keys in the order in which they are added.
class Body {
public:
    Body& add(std::string key, Json value);
    /// Adds a value whose JSON is at hand and goes out byte for byte.
    Body& addRaw(std::string key, std::string_view json);

    /// The whole object as text; nothing when a value cannot be written (a text that is no UTF-8), in which
    /// case a request goes out without a body.
    std::optional<std::string> serialised() const;
    /// The same for a request that must not go out without a body. @throws Error
    std::string serialisedOrFail() const;

private:
    std::vector<std::pair<std::string, std::optional<std::string>>> members_;
};

} // namespace ombrivane
