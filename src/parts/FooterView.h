#pragma once

#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Screen.h"
#include "platform/Platform.h"

#include <string>

namespace ombrivane {

/// The support strip under the search form. Five taps on its mark tell the build version.
class FooterView final : public Screen {
public:
    FooterView();

    Published<bool> showAlert{fields, "showAlert"};
    Derived<std::string> poweredBy{fields, "poweredBy", [] { return std::string("Powered By"); }};
    Derived<std::string> mobile;
    Derived<std::string> landLine;
    Action<> tapMark{*this, "tapMark", [this] { countTap(); }};
    Action<> callMobile;
    Action<> openViber;
    Action<> openWhatsapp;
    Action<> callLandLine;

private:
    void countTap();

    int taps_ = 0;
    WorkItem forget_;
    Link alert_;
};

} // namespace ombrivane
