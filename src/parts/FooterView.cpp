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

/// A number as links carry it: without blanks, brackets and dashes.
std::string digitsOf(std::string number) {
    std::erase_if(number, [](char character) { return character < '0' || character > '9'; });
    return number;
}

} // namespace

void FooterView::countTap() {
    if (++taps_ == tapsForVersion) {
        taps_ = 0;
        showAlert = true;
    }
    forget_ = mainQueue().after(gestureGap, [this] { taps_ = 0; });
}

std::string FooterView::viberNumber() {
    const auto& contacts = SupportContacts::current();
    return contacts.viber.value_or(contacts.mobile);
}

std::string FooterView::whatsappNumber() {
    const auto& contacts = SupportContacts::current();
    return contacts.whatsapp.value_or(contacts.mobile);
}

void FooterView::call(const std::string& number) {
    open((number.starts_with('+') ? "tel:+" : "tel:") + digitsOf(number));
}

void FooterView::writeByViber() {
    const std::string number = viberNumber();
    open((number.starts_with('+') ? "viber://contact?number=%2B" : "viber://contact?number=") +
         digitsOf(number));
}

void FooterView::writeByWhatsapp() { open("whatsapp://send?phone=" + digitsOf(whatsappNumber())); }

void FooterView::open(const std::string& url) {
    if (isUrl(url)) platform().urls->openUrl(url);
}

std::shared_ptr<Screen> FooterView::makeVersionAlert() {
    return std::make_shared<AlertView>(said(Text::buildVersion), OmbrivaneVersionString);
}

} // namespace ombrivane
