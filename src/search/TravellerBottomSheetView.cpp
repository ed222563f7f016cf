#include "search/TravellerBottomSheetView.h"

#include "parts/CustomRadioButtonFieldView.h"
#include "search/TravellerIncDecButtonView.h"

#include <array>

namespace ombrivane {
namespace {

struct CabinChoice {
    const char* id;
    const char* label;
};

constexpr std::array<CabinChoice, 5> cabinChoices{{
    {"Economy", "Economy"},
    {"Premium Economy", "Premium Economy"},
    {"Business", "Business"},
    {"First Class", "First Class"},
    {"All Class", "All"},
}};

constexpr std::array kinds{TravellerKind::adult, TravellerKind::child, TravellerKind::infant};

} // namespace

TravellerBottomSheetView::TravellerBottomSheetView(MainViewModel& model) :
    Screen("TravellerBottomSheetView"),
    travellerTextField(fields, "travellerTextField", model.travellerText),
    adult(fields, "adult", model.adult),
    child(fields, "child", model.child),
    infant(fields, "infant", model.infant),
    cabinClass(fields, "cabinClass", model.cabinClass),
    heading(fields, "heading", constant("Select Number Of Travellers And Class")),
    subHeading(fields, "subHeading", constant("Add Number Of Travellers")),
    cabinHeading(fields, "cabinHeading", constant("Choose Cabin Class")),
    doneText(fields, "doneText", constant("Done")),
    steppers(
        *this, "steppers", [] { return kinds.size(); },
        [this](std::size_t index) {
            return std::make_shared<TravellerIncDecButtonView>(kinds.at(index), adult, child, infant);
        }),
    cabins(
        *this, "cabins", [] { return cabinChoices.size(); },
        [this](std::size_t index) {
            const CabinChoice& choice = cabinChoices.at(index);
            return std::make_shared<CustomRadioButtonFieldView>(
                choice.id,
                choice.label,
                [this, &choice] { return cabinClass.get() == choice.id; },
                [this, &choice] { cabinClass = choice.id; });
        }),
    done(*this, "done", [this] {
        const auto counts = TravellerCounts::from(adult, child, infant);
        travellerTextField = std::to_string(counts.total()) + ", " + cabinClass.get();
        dismiss();
    }) {}

} // namespace ombrivane
