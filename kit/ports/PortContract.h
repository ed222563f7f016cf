#pragma once

#include "platform/Platform.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ombrivane::kit {

/// What a port does otherwise than its header in `platform/` promises, one sentence each; empty where it
/// keeps to all that can be seen from outside.
using Findings = std::vector<std::string>;

/// Turns the main thread's loop until `done` holds or `limit` has passed: on a device its event loop, or
/// `RunLoop::runUntil`.
using RunUntil = std::function<void(const std::function<bool()>& done, std::chrono::milliseconds limit)>;

/// What a person in front of the picker does, played by the test: each is called while the picker is open,
/// and brings the port one answer, at once or while the loop turns.
struct PhotoCustomer {
    std::function<void()> picks;   ///< a picture
    std::function<void()> cancels; ///< nothing
};

/// Holds a main queue against `platform/MainQueue.h`: its thread, its order, timers that are dropped, ticks
/// that are owed after a pause, steps that are left by a fault. Takes about two seconds and replaces the
/// fault handler meanwhile. Main thread.
Findings checkMainQueue(const std::shared_ptr<MainQueue>& queue, const RunUntil& runUntil);

/// Holds a picker against `platform/PhotoLibrary.h`: one answer for each thing that the customer does, on the
/// main thread, none after `dismiss`, and nothing held then. Main thread.
Findings checkPhotoLibrary(const std::shared_ptr<PhotoLibrary>& photos, const PhotoCustomer& customer,
                           const RunUntil& runUntil);

/// Holds a measure against `platform/ReachabilityMeasure.h`: it answers, within three seconds and from any
/// thread, and finds the way to a service on this machine. Any thread.
Findings checkReachability(const std::shared_ptr<ReachabilityMeasure>& reachability);

/// Holds a clock against `platform/Clock.h`: it goes, neither backwards nor too fast, on any thread.
Findings checkClock(const std::shared_ptr<Clock>& clock);

/// Holds a codec against `platform/ImageCodec.h`: what it writes it reads, what is no picture or beyond the
/// limits it refuses.
Findings checkImageCodec(const std::shared_ptr<ImageCodec>& images);

/// Holds the device's language against `platform/Localization.h`: a locale and a time zone of the right form,
/// and a key without a translation comes back as it is.
Findings checkLocalization(const std::shared_ptr<Localization>& localization);

/// Holds a network against `platform/Network.h`, with a sandbox of its own: each completion is called once,
/// on a thread of the network, no redirect is followed, a certificate that is not trusted ends a request, and
/// what is under way when the network goes is answered before it has gone. Takes some seconds.
/// @param make a network that trusts the certificates in that file and no others
Findings checkNetwork(const std::function<std::shared_ptr<Network>(const std::string& caFile)>& make);

} // namespace ombrivane::kit
