#pragma once

#include "base/Uuid.h"
#include "records/Wire.h"

#include <optional>
#include <string>

namespace ombrivane {

/// The travel details of one person, as the reservation sends them.
struct Passenger {
    Uuid id;         ///< of the slot that the traveller form was opened for
    std::string dob; ///< "yyyy-MM-dd"
    std::string dobNepali;
    std::optional<std::string> documentExpiryDate; ///< "yyyy-MM-dd"
    std::optional<std::string> documentIssuedDateSerialNo;
    std::optional<std::string> documentNumber;
    std::string documentType; ///< wire code
    std::string firstName;
    std::string gender; ///< "Male" or "Female"
    std::string lastName;
    std::string middleName;
    std::string email;
    std::string nationality; ///< two-letter code
    std::string title;
    std::string type; ///< "ADT", "CHD" or "INF"

    bool operator==(const Passenger&) const = default;

    static constexpr auto wire =
        fields(field("id", &Passenger::id), field("dob", &Passenger::dob),
               field("dob_nepali", &Passenger::dobNepali),
               field("document_expiry_date", &Passenger::documentExpiryDate),
               field("document_issued_date_serial_no", &Passenger::documentIssuedDateSerialNo),
               field("document_number", &Passenger::documentNumber),
               field("document_type", &Passenger::documentType), field("first_name", &Passenger::firstName),
               field("gender", &Passenger::gender), field("last_name", &Passenger::lastName),
               field("middle_name", &Passenger::middleName), field("email", &Passenger::email),
               field("nationality", &Passenger::nationality), field("title", &Passenger::title),
               field("type", &Passenger::type));
};

} // namespace ombrivane
