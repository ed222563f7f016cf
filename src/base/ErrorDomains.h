#pragma once

#include <cstdint>

namespace ombrivane {

/// Who failed: what `Error::domain` says.
namespace errorDomain {
inline constexpr const char* custom = "CustomError"; ///< the component itself; code: `CustomError`
inline constexpr const char* service = "Ombrivane";  ///< the booking service; code: `ServiceError`
/// The booking service refused the wallet's credentials; code: 0.
inline constexpr const char* authentication = "Ombrivane.Authentication";
inline constexpr const char* network = "Network";   ///< the way to the service; code: `NetworkError`
inline constexpr const char* decoding = "Decoding"; ///< an answer that was not understood; code: 0
inline constexpr const char* encoding = "Encoding"; ///< something that could not be written; code: 0
} // namespace errorDomain

/// The failures that the component raises by itself.
enum class CustomError : std::uint8_t {
    invalidUrl,            ///< an address that is none, of a service host or with an airport's name in it
    noInternetConnection,  ///< the network could not be reached; nothing was sent
    requiredIOSVersion,    ///< below iOS 14
    sourceDestinationSame, ///< a search from a place to itself; shown, and never told to the host
};

/// What the booking service brought.
enum class ServiceError : std::uint8_t {
    refused,       ///< it said no, in the words of `Error::localizedDescription`
    unanswered,    ///< the operation ended without an answer
    noReservation, ///< a reservation was answered by nothing at all
    notCompleted,  ///< something unforeseen stood in the way, memory that was not there for instance
};

/// How the way to the service failed: the codes of libcurl that occur most. Any other of them may come as
/// well.
enum class NetworkError : std::uint8_t {
    noAnswer = 0,        ///< neither an answer nor a reason
    hostNotFound = 6,    ///< the name of the host is not known
    notConnected = 7,    ///< nobody listens there
    timedOut = 28,       ///< no byte came for a minute, or the whole took too long
    notSecured = 35,     ///< TLS could not be agreed upon
    cancelled = 42,      ///< the host ended the network meanwhile
    endedEarly = 52,     ///< the connection was closed without an answer
    broken = 56,         ///< the connection broke while the answer came
    notTrusted = 60,     ///< the service's certificate is not trusted
    tooLarge = 63,       ///< the answer is larger than `limits` allow
    noCertificates = 77, ///< the file of trusted certificates cannot be read
};

} // namespace ombrivane
