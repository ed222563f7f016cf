#include "platform/SystemLocalization.h"

#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <memory>

namespace ombrivane {

SystemLocalization::SystemLocalization() : locale_(icu::Locale::getDefault().getName()) {
    // What a process without a language has groups no digits and is meant for machines.
    if (locale_ == "en_US_POSIX") locale_ = "en_US";
    const std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createDefault());
    icu::UnicodeString id;
    zone->getID(id).toUTF8String(timeZone_);
}

std::string SystemLocalization::localized(const std::string& key, const std::string& /*comment*/) {
    return key;
}

} // namespace ombrivane
