#include "parts/FooterView.h"

#include "base/OmbrivaneVersion.h"
#include "base/Url.h"
#include "parts/AlertView.h"
#include "words/Words.h"

namespace ombrivane {
namespace {

constexpr int tapsForVersion = 5;
/// Taps that lie further apart are no gesture.
constexpr std::chrono::milliseconds gestureGap{1000};

} // namespace

void FooterView::countTap() {
    if (++taps_ == tapsForVersion) {
        taps_ = 0;
        showAlert = true;
    }
    forget_ = mainQueue().after(gestureGap, [this] { taps_ = 0; });
}

std::string FooterView::dialled(const Constant& number) {
    std::string text = number.get();
    std::erase(text, ' ');
    return text;
}

void FooterView::open(const std::string& url) {
    if (isUrl(url)) platform().urls->openUrl(url);
}

std::shared_ptr<Screen> FooterView::makeVersionAlert() {
    return std::make_shared<AlertView>(said(Text::buildVersion), OmbrivaneVersionString);
}

} // namespace ombrivane
