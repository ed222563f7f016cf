#pragma once

#include "booking/FlightDetailsView.h"
#include "booking/JourneyCard.h"
#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Screen.h"
#include "records/FlightAvailability.h"
#include "records/KeyedRecords.h"
#include "records/UniquePassanger.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// The travellers of a booking in one line, as "2 A , 1 I".
std::string passengerSummary(const std::vector<UniquePassanger>& slots);

/// The summary card of what was priced, one block for each direction, with the way to the details.
class FlightInformationView : public Screen {
public:
    Published<std::string> bookingClass;
    Binding<bool> isLoading;
    Binding<std::vector<UniquePassanger>> uniquePassangers;
    Published<bool> navigationIsActive{fields, "navigationIsActive"};
    Derived<std::vector<JourneyCard>> journeys;
    Derived<std::string> passengerLine;
    Derived<std::string> detailsText;
    Action<> viewDetails;

protected:
    FlightInformationView(std::string_view name, std::string cabinName, const Field<bool>& loading,
                          const Field<std::vector<UniquePassanger>>& slots,
                          std::function<std::vector<JourneyCard>()> cards,
                          std::function<std::shared_ptr<Screen>()> details);

private:
    Link details_;
};

class OWFlightInformationView final : public FlightInformationView {
public:
    OWFlightInformationView(const Field<std::optional<OWFlightAvailability>>& availability,
                            std::string cabinName, const Field<bool>& loading,
                            const Field<std::vector<UniquePassanger>>& slots);

    Derived<std::optional<FlightsSummary>> flightsSummary;

private:
    Fields unkeyed_;
    Binding<std::optional<OWFlightAvailability>> availability_;
};

class RTFlightInformationView final : public FlightInformationView {
public:
    RTFlightInformationView(const Field<std::optional<RTFlightAvailability>>& availability,
                            std::string cabinName, const Field<bool>& loading,
                            const Field<std::vector<UniquePassanger>>& slots);

    Derived<std::optional<RTFlightsSummary>> flightsSummary;

private:
    Fields unkeyed_;
    Binding<std::optional<RTFlightAvailability>> availability_;
};

} // namespace ombrivane
