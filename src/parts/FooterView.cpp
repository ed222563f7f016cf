#include "parts/FooterView.h"

#include "base/OmbrivaneVersion.h"
#include "base/Url.h"
#include "parts/AlertView.h"

namespace ombrivane {
namespace {

/// The support numbers, as shown; telephone links carry them without blanks. They are of a range that is not
/// given out to anybody, until a wallet has its own.
constexpr const char* mobileNumber = "+977 980 0000 000";
constexpr const char* landLineNumber = "+977 1 5550 100";

constexpr int tapsForVersion = 5;
/// Taps that lie further apart are no gesture.
constexpr std::chrono::milliseconds gestureGap{1000};

std::string withoutBlanks(std::string text) {
    std::erase(text, ' ');
    return text;
}

void open(const std::string& url) {
    if (isUrl(url)) platform().urls->openUrl(url);
}

} // namespace

FooterView::FooterView() :
    Screen("FooterView"),
    mobile(fields, "mobile", [] { return std::string(mobileNumber); }),
    landLine(fields, "landLine", [] { return std::string(landLineNumber); }),
    callMobile(*this, "callMobile", [] { open("tel:" + withoutBlanks(mobileNumber)); }),
    openViber(*this, "openViber",
              [] { open("viber://contact?number=%2B" + withoutBlanks(mobileNumber).substr(1)); }),
    openWhatsapp(*this, "openWhatsapp",
                 [] { open("whatsapp://send?phone=" + withoutBlanks(mobileNumber).substr(1)); }),
    callLandLine(*this, "callLandLine", [] { open("tel:" + withoutBlanks(landLineNumber)); }),
    alert_(*this, Presentation::alert, showAlert,
           [] { return std::make_shared<AlertView>("Build Version", OmbrivaneVersionString); }) {}

void FooterView::countTap() {
    if (++taps_ == tapsForVersion) {
        taps_ = 0;
        showAlert = true;
    }
    forget_ = mainQueue().after(gestureGap, [this] { taps_ = 0; });
}

} // namespace ombrivane
