#pragma once

#include "booking/FormColour.h"
#include "keyed/Field.h"

namespace ombrivane {

/// How the fields of a form are marked. Both colours start alike, so that a new form shows no marks; the
/// first attempt to save gives them their lasting values, and from then on every field colours itself as it
/// is filled.
struct FormMarks {
    explicit FormMarks(Fields& fields) :
        noErrorFormBorderColor(fields, "noErrorFormBorderColor", FormColour::formBorderColor),
        errorFormBorderColor(fields, "errorFormBorderColor", FormColour::formBorderColor) {}

    void begin() {
        errorFormBorderColor = FormColour::primaryColor;
        noErrorFormBorderColor = FormColour::secondaryColor;
    }

    FormColour of(bool inOrder) const { return inOrder ? noErrorFormBorderColor : errorFormBorderColor; }

    Published<FormColour> noErrorFormBorderColor;
    Published<FormColour> errorFormBorderColor;
};

} // namespace ombrivane
