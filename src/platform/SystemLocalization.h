#pragma once

#include "base/Api.h"
#include "platform/Localization.h"

#include <string>

namespace ombrivane {

/// The process's own locale and time zone, unless a developer names others; no translations.
class OMBRIVANE_API SystemLocalization final : public Localization {
public:
    SystemLocalization();

    std::string localized(const std::string& key, const std::string& comment) override;
    std::string locale() override { return locale_; }
    std::string timeZone() override { return timeZone_; }

    /// Such as "en_US", in place of the process's own. Before the first use.
    void useLocale(std::string locale) { locale_ = std::move(locale); }
    /// Such as "Asia/Kathmandu", in place of the device's own. Before the first use.
    void useTimeZone(std::string timeZone) { timeZone_ = std::move(timeZone); }

private:
    std::string locale_;
    std::string timeZone_;
};

} // namespace ombrivane
