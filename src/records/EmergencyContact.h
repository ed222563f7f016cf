#pragma once

#include "records/Wire.h"

#include <string>

namespace ombrivane {

/// The one contact person of a booking.
struct EmergencyContact {
    std::string contact; ///< telephone number
    std::string email;
    std::string name;
    bool isPassenger = false;

    bool operator==(const EmergencyContact&) const = default;

    static constexpr auto wire =
        fields(field("contact", &EmergencyContact::contact), field("email", &EmergencyContact::email),
               field("name", &EmergencyContact::name), field("isPassenger", &EmergencyContact::isPassenger));
};

} // namespace ombrivane
