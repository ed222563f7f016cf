#pragma once

#include "dates/Calendar.h"
#include "dates/Day.h"
#include "dates/TripDates.h"
#include "keyed/Field.h"
#include "offers/CabinClass.h"
#include "records/Country.h"
#include "records/KeyedRecords.h"

#include <string>
#include <vector>

namespace ombrivane {

/// The search form, shared by both tabs and kept for the life of the process. Traveller counts are decimal
/// texts throughout. Main thread.
class MainViewModel {
public:
    static MainViewModel& shared();

    /// No sheet and no alert lies over the form.
    void closeSheets();

    /// Exchanges origin and destination: texts, cities, codes and countries.
    void swapLocations();

    /// The service's code of the chosen cabin class; empty means any.
    std::string cabinClassCode() const;

    /// Whether a field that every search needs is empty.
    bool isMissingFields() const;
    /// Whether no return date was chosen. The text counts, not the date.
    bool isMissingReturnDate() const;

    /// Whether both airports lie in the home country.
    bool isDomestic() const;

    /// Moves the return date to three days after the departure; its text stays.
    void setDefaultReturnDate();

    Fields fields;
    Published<bool> showTravellerSheet{fields, "showTravellerSheet"};
    Published<bool> showAlert{fields, "showAlert"};
    Published<bool> showDestinationSameAlert{fields, "showDestinationSameAlert"};
    Published<std::string> originText{fields, "originText"};
    Published<std::string> destinationText{fields, "destinationText"};
    Published<std::string> departureDateText{fields, "departureDateText"};
    Published<Day> departureDate{fields, "departureDate", calendar::today()};
    Published<std::string> returnDateText{fields, "returnDateText"};
    Published<Day> returnDate{fields, "returnDate", defaultReturn(departureDate)};
    Published<std::string> nationalityText{fields, "nationalityText"};
    Published<std::string> travellerText{fields, "travellerText", "1, All Class"};
    Published<bool> showNationalitySheet{fields, "showNationalitySheet"};
    Published<bool> showProgressView{fields, "showProgressView"};
    Published<std::vector<Country>> countries{fields, "countries"};
    Published<std::string> departCityCode{fields, "departCityCode"};
    Published<std::string> departCity{fields, "departCity"};
    Published<std::string> departCountry{fields, "departCountry"};
    Published<std::string> destCityCode{fields, "destCityCode"};
    Published<std::string> destCity{fields, "destCity"};
    Published<std::string> destCountry{fields, "destCountry"};
    Published<std::string> nationality{fields, "nationality"};
    Published<std::string> adult{fields, "adult", "1"};
    Published<std::string> child{fields, "child", "0"};
    Published<std::string> infant{fields, "infant", "0"};
    Published<std::string> cabinClass{fields, "cabinClass", anyCabin};
};

} // namespace ombrivane
