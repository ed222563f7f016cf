#pragma once

#include <string>

namespace ombrivane {

/// Opens an address outside of the component: a telephone link, a message.
class UrlOpener {
public:
    UrlOpener() = default;
    UrlOpener(const UrlOpener&) = delete;
    UrlOpener& operator=(const UrlOpener&) = delete;
    virtual ~UrlOpener() = default;

    /// Main thread. Whether it worked is not told.
    virtual void openUrl(const std::string& url) = 0;
};

/// The device's sheet that hands something on to another application.
class ShareSheet {
public:
    ShareSheet() = default;
    ShareSheet(const ShareSheet&) = delete;
    ShareSheet& operator=(const ShareSheet&) = delete;
    virtual ~ShareSheet() = default;

    /// Main thread.
    virtual void share(const std::string& url) = 0;
};

} // namespace ombrivane
