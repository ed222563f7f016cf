#pragma once

#include "platform/Platform.h"

namespace ombrivane::view {

/// The component's resources, compiled in under a prefix of their own.
class QtBundles final : public ResourceBundles {
public:
    bool contains(const std::string& identifier) override;
    std::optional<std::vector<std::string>> urls(const std::string& identifier,
                                                 const std::string& extension) override;
};

/// Registers fonts with the application.
class QtFonts final : public FontRegistry {
public:
    void registerFont(const std::string& url) override;
};

/// The system's locale and time zone, and the application's translations.
class QtLocalization final : public Localization {
public:
    std::string localized(const std::string& key, const std::string& comment) override;
    std::string locale() override;
    std::string timeZone() override;
};

class QtUrls final : public UrlOpener {
public:
    void openUrl(const std::string& url) override;
};

/// Where the system has no sheet for sharing, the address goes to the clipboard and is opened.
class QtSharing final : public ShareSheet {
public:
    void share(const std::string& url) override;
};

/// The name and version of the system that the application runs on.
SystemVersion systemVersion();

} // namespace ombrivane::view
