#pragma once

#include "records/Wire.h"

#include <optional>
#include <string>

namespace ombrivane {

/// An object of attributes with a text beside it: the shape of several records of the reservation system.
template <class Attributes> struct Attributed {
    std::optional<Attributes> attributes;
    std::optional<std::string> value;

    bool operator==(const Attributed&) const = default;

    static constexpr auto wire =
        fields(field("attributes", &Attributed::attributes), field("value", &Attributed::value));
};

} // namespace ombrivane
