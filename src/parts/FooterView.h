#pragma once

#include "keyed/Action.h"
#include "keyed/Constant.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Screen.h"
#include "platform/Platform.h"
#include "words/Caption.h"

#include <memory>
#include <string>

namespace ombrivane {

/// The support strip under the search form. Five taps on its mark tell the build version.
class FooterView final : public Screen {
public:
    FooterView() : Screen("FooterView") {}

    Published<bool> showAlert{fields, "showAlert"};
    Caption poweredBy{fields, "poweredBy", Text::poweredBy};
    /// The support numbers, as shown. They are of a range that is not given out to anybody, until a wallet
    /// has its own.
    Constant mobile{fields, "mobile", "+977 980 0000 000"};
    Constant landLine{fields, "landLine", "+977 1 5550 100"};
    Action<> tapMark{*this, "tapMark", [this] { countTap(); }};
    Action<> callMobile{*this, "callMobile", [this] { open("tel:" + dialled(mobile)); }};
    Action<> openViber{
        *this, "openViber", [this] { open("viber://contact?number=%2B" + dialled(mobile).substr(1)); }};
    Action<> openWhatsapp{
        *this, "openWhatsapp", [this] { open("whatsapp://send?phone=" + dialled(mobile).substr(1)); }};
    Action<> callLandLine{*this, "callLandLine", [this] { open("tel:" + dialled(landLine)); }};

private:
    void countTap();
    /// A number as links carry it: without blanks.
    static std::string dialled(const Constant& number);
    static void open(const std::string& url);
    static std::shared_ptr<Screen> makeVersionAlert();

    int taps_ = 0;
    WorkItem forget_;
    Link alert_{*this, Presentation::alert, showAlert, [] { return makeVersionAlert(); }};
};

} // namespace ombrivane
