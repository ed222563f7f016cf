#pragma once

#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Screen.h"
#include "parts/CustomSnackBarView.h"
#include "records/KeyedRecords.h"
#include "richtext/KeyedRuleParagraph.h"
#include "services/OWRestrictionProvider.h"
#include "services/RTRestrictionProvider.h"
#include "state/AppState.h"
#include "state/CompletionCallback.h"

#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// The fare rules, between the result list and the booking session. Nothing is booked yet, and a check that
/// failed never blocks the way on.
class RulesAndRegulationView final : public Screen {
public:
    struct Given {
        const Field<bool>& isActive; ///< the result list's flag that shows this screen
        std::string bookingClass;    ///< cabin letter of the search
        std::string departLocation;
        std::string destLocation;
        std::string itineraryType;
        std::optional<AnyFlight> flight;
        std::optional<AnyFlight> returnFlight;
        CompletionCallback completionCallback;
    };

    explicit RulesAndRegulationView(Given given);

    void appear() override { fetch(); }
    void disappear() override { task_.cancel(); }

    Binding<bool> rulesAndRegulationViewIsActive;
    Published<std::string> bookingClass;
    Published<std::string> departLocation;
    Published<std::string> destLocation;
    Published<std::string> itineraryType;
    Published<std::optional<AnyFlight>> flight;
    Published<std::optional<AnyFlight>> returnFlight;
    Published<bool> roundTripBookingDetailScreenIsActive{fields, "roundTripBookingDetailScreenIsActive"};
    Published<bool> oneWayBookingDetailScreenIsActive{fields, "oneWayBookingDetailScreenIsActive"};
    Published<bool> showSnackBar{fields, "showSnackBar"};
    Published<bool> showProgressView{fields, "showProgressView", true};
    Published<std::string> errorMessage{fields, "errorMessage"};
    Published<std::string> htmlText{fields, "htmlText"};
    /// The height that the drawn text needs, in points, told by the view.
    Published<double> size{fields, "size", 0.0};

    Derived<std::string> title{fields, "title", [] { return std::string("Rules & Regulations"); }};
    /// The rules reduced to plain paragraphs.
    Derived<std::vector<RuleParagraph>> paragraphs;
    Derived<std::string> cancelText{fields, "cancelText", [] { return std::string("Cancel"); }};
    Derived<std::string> continueText{fields, "continueText", [] { return std::string("Continue"); }};
    Action<double> measured{*this, "measured", [this](double height) { size = height; }};
    Action<> cancel;
    Action<> continue_;

private:
    void fetch();
    void take(std::optional<std::string> message, const std::optional<Error>& error);
    std::string cabinName() const;
    const std::vector<RuleParagraph>& rules() const;

    CompletionCallback completionCallback_;
    OWRestrictionProvider restrictionsOneWayProvider_;
    RTRestrictionProvider restrictionsRoundTripProvider_;
    WorkItem task_;
    mutable std::vector<RuleParagraph> rules_;
    mutable std::uint64_t rulesVersion_ = UINT64_MAX;
    CustomSnackBarView snackBar_{showSnackBar};
    Link oneWaySession_;
    Link roundTripSession_;
};

} // namespace ombrivane
