#include "platform/HeadlessPlatform.h"

#include "platform/AdjustableClock.h"
#include "platform/CurlNetwork.h"
#include "platform/DirectoryBundles.h"
#include "platform/JpegPngCodec.h"
#include "platform/RouteReachability.h"
#include "platform/SystemLocalization.h"

namespace ombrivane {
namespace {

/// What is not drawn needs no fonts.
class NoResources final : public ResourceBundles {
public:
    bool contains(const std::string& /*identifier*/) override { return true; }
    std::optional<std::vector<std::string>> urls(const std::string& /*identifier*/,
                                                 const std::string& /*extension*/) override {
        return std::vector<std::string>();
    }
};

/// A picker that is cancelled as soon as it opens.
class NoPhotos final : public PhotoLibrary {
public:
    void present(Handler handler) override {
        cancellation_ = mainQueue().after(MainQueue::Duration(0), [handler = std::move(handler)] {
            handler(Picked{.cancelled = true, .editedImage = std::nullopt});
        });
    }
    void dismiss() override { cancellation_ = {}; }

private:
    WorkItem cancellation_;
};

class NoUrls final : public UrlOpener {
public:
    void openUrl(const std::string& /*url*/) override {}
};

class NoSharing final : public ShareSheet {
public:
    void share(const std::string& /*url*/) override {}
};

} // namespace

Platform headlessPlatform(std::shared_ptr<RunLoop> loop, const std::string& caFile,
                          const std::string& reachabilityAddress) {
    CurlSettings settings;
    settings.caFile = caFile;
    Platform ports;
    ports.mainQueue = std::move(loop);
    ports.network = std::make_shared<CurlNetwork>(settings);
    ports.background = std::make_shared<SerialQueue>("pictures");
    ports.reachability = std::make_shared<RouteReachability>(reachabilityAddress);
    ports.clock = std::make_shared<AdjustableClock>();
    ports.bundles = std::make_shared<NoResources>();
    ports.fonts = std::make_shared<NoFonts>();
    ports.localization = std::make_shared<SystemLocalization>();
    ports.images = std::make_shared<JpegPngCodec>();
    ports.photos = std::make_shared<NoPhotos>();
    ports.urls = std::make_shared<NoUrls>();
    ports.sharing = std::make_shared<NoSharing>();
    return ports;
}

} // namespace ombrivane
