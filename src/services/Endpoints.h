#pragma once

#include <string>

namespace ombrivane {

/// The addresses of the booking service. Built once per process, at the first use of any of them, from the
/// environment of `AppState` at that moment: exactly "test" selects the test host, everything else the
/// production host. Any thread.
struct Endpoints {
    Endpoints();
    static const Endpoints& shared();

    std::string baseURL;
    std::string token;
    std::string airportSearch; ///< ends with its query key; the query is appended
    std::string countries;
    std::string flightSearch;
    std::string availability;
    std::string restrictions;
    std::string reservation;
    std::string documents;
    std::string orderGeneration;
    std::string orderConfirmation;
    std::string ticketIssue;
    std::string ticketDownload;
};

} // namespace ombrivane
