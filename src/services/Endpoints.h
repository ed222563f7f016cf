#pragma once

#include <string>
#include <string_view>

namespace ombrivane {

/// The operations of the booking service: what follows the prefix in an address.
namespace endpoint {
inline constexpr std::string_view token = "/get-token";
inline constexpr std::string_view airportSearch = "/search-airports";
inline constexpr std::string_view countries = "/countries";
inline constexpr std::string_view flightSearch = "/search-flights";
inline constexpr std::string_view availability = "/availability";
inline constexpr std::string_view restrictions = "/verify-flights";
inline constexpr std::string_view reservation = "/reservation";
inline constexpr std::string_view documents = "/documents";
inline constexpr std::string_view orderGeneration = "/kolmiwallet-generate-order";
inline constexpr std::string_view orderConfirmation = "/kolmiwallet-confirm-order";
inline constexpr std::string_view ticketIssue = "/issue-ticket";
inline constexpr std::string_view ticketDownload = "/download-ticket";
} // namespace endpoint

/// Where the booking service stands. Chosen once per process, when the first address is asked for, by the
/// environment of `AppState` at that moment: exactly "test" selects the test host, everything else the
/// production host. Any thread.
struct Endpoints {
    Endpoints();
    static const Endpoints& shared();
    /// Whether the first request of the process has fixed the host.
    static bool areFixed();

    /// The address of an operation.
    std::string address(std::string_view endpoint) const;

    std::string baseURL;
};

} // namespace ombrivane
