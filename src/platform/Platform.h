#pragma once

#include "base/Api.h"
#include "platform/Clock.h"
#include "platform/Diagnostics.h"
#include "platform/ImageCodec.h"
#include "platform/Localization.h"
#include "platform/MainQueue.h"
#include "platform/Network.h"
#include "platform/PhotoLibrary.h"
#include "platform/ReachabilityMeasure.h"
#include "platform/ResourceBundles.h"
#include "platform/SerialQueue.h"
#include "platform/Sharing.h"
#include "platform/SystemVersion.h"

#include <memory>

namespace ombrivane {

/// All that the component asks of a device. Set once, before the first use; lives until the process ends or
/// another one is installed.
struct OMBRIVANE_API Platform {
    std::shared_ptr<MainQueue> mainQueue; ///< runs on the thread that shows the view
    /// Reaches the booking service and the addresses of pictures.
    std::shared_ptr<Network> network;
    /// Where pictures are written for an upload, which takes a quarter of a second for each; left empty, it
    /// is done where it is asked for, and holds up the screen.
    std::shared_ptr<SerialQueue> background;
    std::shared_ptr<ReachabilityMeasure> reachability; ///< asked before each request
    std::shared_ptr<Clock> clock;                      ///< what "today" and the session's end are read from
    std::shared_ptr<ResourceBundles> bundles;          ///< where the fonts are found
    std::shared_ptr<FontRegistry> fonts;               ///< told of each font once
    std::shared_ptr<Localization> localization;        ///< texts, locale and time zone of the customer
    std::shared_ptr<ImageCodec> images;                ///< logos, and the pictures of documents
    std::shared_ptr<PhotoLibrary> photos;              ///< where a picture of a document is picked
    std::shared_ptr<UrlOpener> urls;                   ///< opens the e-ticket and the contacts of the footer
    std::shared_ptr<ShareSheet> sharing;               ///< hands an e-ticket on
    /// Hears lines for a developer: itineraries, codes of countries and references of tickets among them, and
    /// nothing that names a customer.
    std::shared_ptr<Diagnostics> diagnostics = std::make_shared<SilentDiagnostics>();
    SystemVersion system; ///< decides whether the component starts, and how it closes

    /// Main thread, with no request under way.
    static void install(Platform platform);

    /// Ends the installed network: what is under way is answered, and lets go of its screens, while all other
    /// ports still stand. What a host does before it ends. Waits for nobody outside; for a picture that is
    /// being written, it does. Main thread.
    static void endNetwork();
};

/// The installed platform. A port that was left empty, or no platform at all, is a fault when it is used.
/// Any thread, after `Platform::install`.
OMBRIVANE_API const Platform& platform();

/// Its main queue. Any thread.
OMBRIVANE_API MainQueue& mainQueue();

} // namespace ombrivane
