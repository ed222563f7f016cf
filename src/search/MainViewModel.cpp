#include "search/MainViewModel.h"

#include "base/SharedInstance.h"
#include "offers/CabinClass.h"

namespace ombrivane {
namespace {

constexpr const char* homeCountry = "Nepal";

} // namespace

MainViewModel& MainViewModel::shared() { return SharedInstance<MainViewModel>::get(); }

void MainViewModel::closeSheets() {
    showTravellerSheet = false;
    showNationalitySheet = false;
    showAlert = false;
    showDestinationSameAlert = false;
}

void MainViewModel::swapLocations() {
    const std::string texts[] = {originText, destinationText};
    const std::string cities[] = {departCity, destCity};
    const std::string codes[] = {departCityCode, destCityCode};
    const std::string lands[] = {departCountry, destCountry};
    originText = texts[1];
    destinationText = texts[0];
    departCity = cities[1];
    destCity = cities[0];
    departCityCode = codes[1];
    destCityCode = codes[0];
    departCountry = lands[1];
    destCountry = lands[0];
}

std::string MainViewModel::cabinClassCode() const { return cabinCodeOfName(cabinClass); }

bool MainViewModel::isMissingFields() const {
    return departCity->empty() || destCity->empty() || departureDateText->empty() || nationality->empty();
}

bool MainViewModel::isMissingReturnDate() const { return returnDateText->empty(); }

bool MainViewModel::isDomestic() const {
    return departCountry.get() == homeCountry && destCountry.get() == homeCountry;
}

void MainViewModel::setDefaultReturnDate() { returnDate = defaultReturn(departureDate); }

} // namespace ombrivane
