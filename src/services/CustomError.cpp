#include "services/CustomError.h"

#include "platform/Platform.h"

#include <array>

namespace ombrivane {
namespace {

struct Wording {
    const char* key;
    const char* comment; ///< for the translator
};

/// In the order of the cases.
constexpr std::array<Wording, 4> wordings{{
    {"The provided url is not valid.", "Invalid URL"},
    {"You are not connected to internet.", "No Internet Connection"},
    {"Please update yor phone to ios 14.", "Invalid URL"},
    {"The source and destination can't be same", "Invalid Destination"},
}};

} // namespace

std::optional<std::string> errorDescription(CustomError error) {
    const Wording& wording = wordings.at(static_cast<std::size_t>(error));
    return platform().localization->localized(wording.key, wording.comment);
}

Error makeError(CustomError error) {
    return {errorDomain::custom, static_cast<int>(error), *errorDescription(error)};
}

bool is(const std::optional<Error>& error, CustomError custom) {
    return error && error->domain == errorDomain::custom && error->code == static_cast<int>(custom);
}

} // namespace ombrivane
