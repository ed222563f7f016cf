#include "device/QtPlatform.h"

#include "device/FileDialogPhotos.h"
#include "device/QtMainQueue.h"
#include "device/QtPorts.h"
#include "device/QtReachability.h"
#include "platform/AdjustableClock.h"
#include "platform/CurlNetwork.h"
#include "platform/JpegPngCodec.h"
#include "platform/RouteReachability.h"

namespace ombrivane::view {

Platform qtPlatform(const std::string& caFile, const std::string& reachabilityAddress) {
    CurlSettings settings;
    settings.caFile = caFile;
    Platform ports;
    ports.mainQueue = std::make_shared<QtMainQueue>();
    ports.network = std::make_shared<CurlNetwork>(settings);
    ports.background = std::make_shared<SerialQueue>("pictures");
    if (reachabilityAddress.empty())
        ports.reachability = std::make_shared<QtReachability>();
    else
        ports.reachability = std::make_shared<RouteReachability>(reachabilityAddress);
    ports.clock = std::make_shared<AdjustableClock>();
    ports.bundles = std::make_shared<QtBundles>();
    ports.fonts = std::make_shared<QtFonts>();
    ports.localization = std::make_shared<QtLocalization>();
    ports.images = std::make_shared<JpegPngCodec>();
    ports.photos = std::make_shared<FileDialogPhotos>();
    ports.urls = std::make_shared<QtUrls>();
    ports.sharing = std::make_shared<QtSharing>();
    ports.system = systemVersion();
    return ports;
}

} // namespace ombrivane::view
