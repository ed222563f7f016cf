#include "services/Endpoints.h"

#include "services/ServiceHosts.h"
#include "state/AppState.h"
#include "support/SharedInstance.h"

namespace ombrivane {
namespace {

std::string chooseBase() { return ServiceHosts::current().of(AppState::shared().environment.get()); }

} // namespace

Endpoints::Endpoints() : baseURL(chooseBase()) {
    const std::string prefix = baseURL + "/api/b2b/v2";
    token = prefix + "/get-token";
    airportSearch = prefix + "/search-airports?q=";
    countries = prefix + "/countries";
    flightSearch = prefix + "/search-flights";
    availability = prefix + "/availability";
    restrictions = prefix + "/verify-flights";
    reservation = prefix + "/reservation";
    documents = prefix + "/documents";
    orderGeneration = prefix + "/kolmiwallet-generate-order";
    orderConfirmation = prefix + "/kolmiwallet-confirm-order";
    ticketIssue = prefix + "/issue-ticket";
    ticketDownload = prefix + "/download-ticket";
}

const Endpoints& Endpoints::shared() { return SharedInstance<Endpoints>::get(); }

} // namespace ombrivane
