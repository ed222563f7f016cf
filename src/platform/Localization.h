#pragma once

#include <string>

namespace ombrivane {

/// The device's language, region and time zone.
class Localization {
public:
    Localization() = default;
    Localization(const Localization&) = delete;
    Localization& operator=(const Localization&) = delete;
    virtual ~Localization() = default;

    /// The host's translation of `key`, or `key` itself where there is none. Any thread.
    virtual std::string localized(const std::string& key, const std::string& comment) = 0;

    /// An ICU locale identifier such as "en_US" or "ne_NP". Any thread.
    virtual std::string locale() = 0;

    /// An IANA time zone such as "Asia/Kathmandu". Any thread.
    virtual std::string timeZone() = 0;
};

} // namespace ombrivane
