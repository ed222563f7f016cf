#pragma once

#include "base/Json.h"

#include <ostream>
#include <string>
#include <vector>

namespace ombrivane {

/// One kind of record with the captured answer that holds some of it.
struct RecordKind {
    const char* file;                         ///< of the captured answer
    std::vector<const char*> at;              ///< where records stand in it: one, or an array of them
    const char* optional;                     ///< the places that may be missing, as a regular expression
    Json (*recoded)(const std::string& json); ///< decoded and encoded again
    bool (*alike)(const std::string& json, const std::string& other); ///< equal, and hashed accordingly

    /// The records as the service sent them.
    std::vector<Json> samples() const;
};

inline std::ostream& operator<<(std::ostream& stream, const RecordKind& kind) { return stream << kind.file; }

const std::vector<RecordKind>& recordKinds();

} // namespace ombrivane
