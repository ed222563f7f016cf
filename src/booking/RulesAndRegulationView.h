#pragma once

#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Screen.h"
#include "parts/CustomSnackBarView.h"
#include "parts/Wait.h"
#include "records/KeyedRecords.h"
#include "richtext/KeyedRuleParagraph.h"
#include "services/RestrictionProvider.h"
#include "state/AppState.h"
#include "state/CompletionCallback.h"
#include "words/Caption.h"

#include <memory>
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

    Caption title{fields, "title", Text::rulesTitle};
    /// The rules reduced to plain paragraphs.
    Derived<std::vector<RuleParagraph>> paragraphs{fields, "paragraphs", [this] { return rules(); }};
    Caption cancelText{fields, "cancelText", Text::cancel};
    Caption continueText{fields, "continueText", Text::continueOn};
    /// What is said of a wait, and when.
    Wait wait{fields, [this]() -> std::optional<Awaited> {
                  if (!showProgressView) return std::nullopt;
                  return Awaited{Text::rulesFetching, Text::waitOrGoBack};
              }};
    Action<double> measured{*this, "measured", [this](double height) { size = height; }};
    Action<> cancel{*this,
                    "cancel",
                    [this] { rulesAndRegulationViewIsActive = false; },
                    [this] { return !showProgressView; }};
    Action<> continue_{*this, "continue", [this] { proceed(); }, [this] { return !showProgressView; }};

private:
    void fetch();
    void take(std::optional<std::string> message, const std::optional<Error>& error);
    void proceed();
    template <class Trip> std::shared_ptr<Screen> makeSession() const;
    std::string cabinName() const;
    const std::vector<RuleParagraph>& rules() const;

    CompletionCallback completionCallback_;
    OWRestrictionProvider restrictionsOneWayProvider_;
    RTRestrictionProvider restrictionsRoundTripProvider_;
    WorkItem task_;
    mutable std::vector<RuleParagraph> rules_;
    mutable std::uint64_t rulesVersion_ = UINT64_MAX;
    CustomSnackBarView snackBar_{showSnackBar};
    Link oneWaySession_{*this, Presentation::push, oneWayBookingDetailScreenIsActive, [this] {
                            return makeSession<OneWay>();
                        }};
    Link roundTripSession_{*this, Presentation::push, roundTripBookingDetailScreenIsActive, [this] {
                               return makeSession<RoundTrip>();
                           }};
};

} // namespace ombrivane
