#pragma once

#include "platform/Clock.h"
#include "platform/Diagnostics.h"
#include "platform/ImageCodec.h"
#include "platform/Localization.h"
#include "platform/MainQueue.h"
#include "platform/Network.h"
#include "platform/PhotoLibrary.h"
#include "platform/ReachabilityMeasure.h"
#include "platform/ResourceBundles.h"
#include "platform/Sharing.h"
#include "platform/SystemVersion.h"
#include "support/Api.h"

#include <memory>

namespace ombrivane {

/// All that the component asks of a device. Set once, before the first use; lives until the process ends or
/// another one is installed.
struct OMBRIVANE_API Platform {
    std::shared_ptr<MainQueue> mainQueue;
    std::shared_ptr<Network> network;
    std::shared_ptr<ReachabilityMeasure> reachability;
    std::shared_ptr<Clock> clock;
    std::shared_ptr<ResourceBundles> bundles;
    std::shared_ptr<FontRegistry> fonts;
    std::shared_ptr<Localization> localization;
    std::shared_ptr<ImageCodec> images;
    std::shared_ptr<PhotoLibrary> photos;
    std::shared_ptr<UrlOpener> urls;
    std::shared_ptr<ShareSheet> sharing;
    std::shared_ptr<Diagnostics> diagnostics = std::make_shared<SilentDiagnostics>();
    SystemVersion system;

    /// Main thread, with no request under way.
    static void install(Platform platform);

    /// Ends the installed network: what is under way is answered, and lets go of its screens, while all other
    /// ports still stand. What a host does before it ends. Main thread.
    static void endNetwork();
};

/// The installed platform. A port that was left empty, or no platform at all, is a fault when it is used.
/// Any thread, after `Platform::install`.
OMBRIVANE_API const Platform& platform();

OMBRIVANE_API MainQueue& mainQueue();

} // namespace ombrivane
