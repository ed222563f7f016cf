#pragma once

#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Screen.h"
#include "parts/SupportContacts.h"
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
    /// The numbers of `SupportContacts`, as they are shown.
    Derived<std::string> mobile{fields, "mobile", [] { return SupportContacts::current().mobile; }};
    Derived<std::string> landLine{fields, "landLine", [] { return SupportContacts::current().landLine; }};
    Action<> tapMark{*this, "tapMark", [this] { countTap(); }};
    /// A number that the wallet does not have is not offered.
    Action<> callMobile{
        *this, "callMobile", [this] { call(mobile.get()); }, [this] { return !mobile.get().empty(); }};
    Action<> openViber{*this, "openViber", [] { writeByViber(); }, [] { return !viberNumber().empty(); }};
    Action<> openWhatsapp{
        *this, "openWhatsapp", [] { writeByWhatsapp(); }, [] { return !whatsappNumber().empty(); }};
    Action<> callLandLine{
        *this, "callLandLine", [this] { call(landLine.get()); }, [this] { return !landLine.get().empty(); }};

private:
    void countTap();
    static std::string viberNumber();
    static std::string whatsappNumber();
    static void call(const std::string& number);
    static void writeByViber();
    static void writeByWhatsapp();
    static void open(const std::string& url);
    static std::shared_ptr<Screen> makeVersionAlert();

    int taps_ = 0;
    WorkItem forget_;
    Link alert_{*this, Presentation::alert, showAlert, [] { return makeVersionAlert(); }};
};

} // namespace ombrivane
