#pragma once

#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Rows.h"
#include "keyed/Screen.h"
#include "offers/CabinClass.h"
#include "search/MainViewModel.h"
#include "search/TravellerRules.h"
#include "words/Caption.h"

#include <array>
#include <memory>
#include <string>

namespace ombrivane {

/// The sheet of travellers and cabin class.
class TravellerBottomSheetView final : public Screen {
private:
    MainViewModel& model_;

public:
    explicit TravellerBottomSheetView(MainViewModel& model) :
        Screen("TravellerBottomSheetView"), model_(model) {}

    Binding<std::string> travellerTextField{fields, "travellerTextField", model_.travellerText};
    Binding<std::string> adult{fields, "adult", model_.adult};
    Binding<std::string> child{fields, "child", model_.child};
    Binding<std::string> infant{fields, "infant", model_.infant};
    Binding<std::string> cabinClass{fields, "cabinClass", model_.cabinClass};
    Caption heading{fields, "heading", Text::travellersTitle};
    Caption subHeading{fields, "subHeading", Text::travellersAdd};
    Caption cabinHeading{fields, "cabinHeading", Text::travellersCabin};
    Caption doneText{fields, "doneText", Text::done};
    /// Adults, children, infants.
    Rows steppers{*this,
                  "steppers",
                  [] { return kinds.size(); },
                  [this](std::size_t index) { return makeStepper(kinds.at(index)); }};
    /// The radio group of the cabin classes.
    Rows cabins{*this,
                "cabins",
                [] { return cabinChoices.size(); },
                [this](std::size_t index) { return makeCabin(cabinChoices.at(index)); }};
    Action<> done{*this, "done", [this] { finish(); }};

private:
    struct CabinChoice {
        const char* id;
        Text label;
    };

    static constexpr std::array kinds{TravellerKind::adult, TravellerKind::child, TravellerKind::infant};
    static constexpr std::array<CabinChoice, 5> cabinChoices{{
        {"Economy", Text::cabinEconomy},
        {"Premium Economy", Text::cabinPremiumEconomy},
        {"Business", Text::cabinBusiness},
        {"First Class", Text::cabinFirst},
        {anyCabin, Text::cabinAll},
    }};

    std::shared_ptr<Screen> makeStepper(TravellerKind kind);
    std::shared_ptr<Screen> makeCabin(const CabinChoice& choice);
    void finish();
};

} // namespace ombrivane
