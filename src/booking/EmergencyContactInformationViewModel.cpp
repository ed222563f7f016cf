#include "booking/EmergencyContactInformationViewModel.h"

#include <algorithm>

namespace ombrivane {
namespace {

constexpr std::ptrdiff_t leastCharacters = 10;

/// Characters, not bytes: every byte of UTF-8 but those that continue one.
std::ptrdiff_t characterCount(const std::string& text) {
    constexpr unsigned continuationMask = 0xC0;
    constexpr unsigned continuation = 0x80;
    return std::count_if(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & continuationMask) != continuation;
    });
}

} // namespace

bool EmergencyContactInformationViewModel::isLongEnough() const {
    return characterCount(phoneNumber) >= leastCharacters;
}

bool EmergencyContactInformationViewModel::validate() {
    marks.begin();
    return name->empty() || surname->empty() || email->empty() || phoneNumber->empty();
}

bool EmergencyContactInformationViewModel::numberIsShort() {
    marks.begin();
    return !isLongEnough();
}

} // namespace ombrivane
