#include "services/CustomError.h"

#include "platform/Platform.h"
#include "words/Words.h"

#include <array>

namespace ombrivane {
namespace {

struct Failure {
    Text text;
    const char* comment; ///< for the translator
};

/// In the order of the cases.
constexpr std::array<Failure, 4> failures{{
    {Text::errorInvalidUrl, "Invalid URL"},
    {Text::errorNoConnection, "No Internet Connection"},
    {Text::errorUpdateDevice, "Invalid URL"},
    {Text::errorInvalidDestination, "Invalid Destination"},
}};

} // namespace

std::optional<std::string> errorDescription(CustomError error) {
    const Failure& failure = failures.at(static_cast<std::size_t>(error));
    return platform().localization->localized(said(failure.text), failure.comment);
}

Error makeError(CustomError error) {
    return {errorDomain::custom, static_cast<int>(error), *errorDescription(error)};
}

bool is(const std::optional<Error>& error, CustomError custom) {
    return error && error->domain == errorDomain::custom && error->code == static_cast<int>(custom);
}

} // namespace ombrivane
