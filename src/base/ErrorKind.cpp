#include "base/ErrorKind.h"

#include "base/ErrorDomains.h"

#include <array>

namespace ombrivane {
namespace {

constexpr std::array<std::string_view, 13> kindNames = {"unsupportedSystem",
                                                        "noConnection",
                                                        "serviceNotReached",
                                                        "serviceNotTrusted",
                                                        "timedOut",
                                                        "connectionLost",
                                                        "answerTooLarge",
                                                        "answerNotUnderstood",
                                                        "credentialsRefused",
                                                        "refused",
                                                        "answerMissing",
                                                        "invalidRequest",
                                                        "unforeseen"};
static_assert(kindNames.size() == static_cast<std::size_t>(ErrorKind::unforeseen) + 1);

ErrorKind kindOf(CustomError error) {
    switch (error) {
    case CustomError::invalidUrl:
    case CustomError::sourceDestinationSame:
        return ErrorKind::invalidRequest;
    case CustomError::noInternetConnection:
        return ErrorKind::noConnection;
    case CustomError::requiredIOSVersion:
        return ErrorKind::unsupportedSystem;
    }
    return ErrorKind::unforeseen;
}

ErrorKind kindOf(ServiceError error) {
    switch (error) {
    case ServiceError::refused:
        return ErrorKind::refused;
    case ServiceError::unanswered:
    case ServiceError::noReservation:
        return ErrorKind::answerMissing;
    case ServiceError::notCompleted:
        return ErrorKind::unforeseen;
    }
    return ErrorKind::unforeseen;
}

ErrorKind kindOf(NetworkError error) {
    switch (error) {
    case NetworkError::noAnswer:
        return ErrorKind::answerMissing;
    case NetworkError::hostNotFound:
    case NetworkError::notConnected:
    case NetworkError::notSecured:
        return ErrorKind::serviceNotReached;
    case NetworkError::notTrusted:
    case NetworkError::noCertificates:
        return ErrorKind::serviceNotTrusted;
    case NetworkError::timedOut:
        return ErrorKind::timedOut;
    case NetworkError::tooLarge:
        return ErrorKind::answerTooLarge;
    case NetworkError::cancelled:
    case NetworkError::endedEarly:
    case NetworkError::broken:
        return ErrorKind::connectionLost;
    }
    return ErrorKind::connectionLost; // any other of libcurl's codes
}

} // namespace

ErrorKind kindOf(const Error& error) {
    if (error.domain == errorDomain::custom) return kindOf(static_cast<CustomError>(error.code));
    if (error.domain == errorDomain::service) return kindOf(static_cast<ServiceError>(error.code));
    if (error.domain == errorDomain::authentication) return ErrorKind::credentialsRefused;
    if (error.domain == errorDomain::network) return kindOf(static_cast<NetworkError>(error.code));
    if (error.domain == errorDomain::decoding) return ErrorKind::answerNotUnderstood;
    if (error.domain == errorDomain::encoding) return ErrorKind::invalidRequest;
    return ErrorKind::unforeseen;
}

std::string_view nameOf(ErrorKind kind) { return kindNames.at(static_cast<std::size_t>(kind)); }

bool cannotHaveHappened(ErrorKind kind) {
    switch (kind) {
    case ErrorKind::unsupportedSystem:
    case ErrorKind::noConnection:
    case ErrorKind::serviceNotReached:
    case ErrorKind::serviceNotTrusted:
    case ErrorKind::credentialsRefused:
    case ErrorKind::refused:
    case ErrorKind::invalidRequest:
        return true;
    default:
        return false;
    }
}

} // namespace ombrivane
