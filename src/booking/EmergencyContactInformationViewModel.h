#pragma once

#include "booking/FormMarks.h"
#include "keyed/Field.h"

#include <string>

namespace ombrivane {

/// What the contact form is editing, and its judgement.
class EmergencyContactInformationViewModel {
public:
    FormColour nameColor() const { return marks.of(!name->empty()); }
    FormColour surnameColor() const { return marks.of(!surname->empty()); }
    FormColour emailColor() const { return marks.of(!email->empty()); }
    FormColour phoneNumberColor() const { return marks.of(isLongEnough()); }

    /// Gives the marks their colours. @return true when a required field is empty
    bool validate();
    /// Gives the marks their colours. @return true when the number has fewer than ten characters, of any kind
    bool numberIsShort();

    Fields fields;
    Published<bool> showSnackBar{fields, "showSnackBar"};
    Published<bool> isPassanger{fields, "isPassanger"};
    Published<std::string> name{fields, "name"};
    Published<std::string> surname{fields, "surname"};
    Published<std::string> email{fields, "email"};
    Published<std::string> phoneNumber{fields, "phoneNumber"};
    FormMarks marks{fields};

private:
    bool isLongEnough() const;
};

} // namespace ombrivane
