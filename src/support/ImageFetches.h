#pragma once

#include "platform/Image.h"
#include "platform/SerialQueue.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// The fetches of pictures that are under way: one for an address, however many wait for it. Main thread
/// only.
class ImageFetches {
public:
    using Receiver = std::function<void(const std::optional<Image>&)>;

    /// Fetches the picture at `url`, or joins the fetch that is under way, and calls `receive` once, later,
    /// on the main queue, with nothing when the fetch failed or its answer is no picture. Decoding happens on
    /// the one thread "image-processing".
    void fetch(const std::string& url, Receiver receive);

private:
    using Waiting = std::map<std::string, std::vector<Receiver>>;

    void start(const std::string& url);

    std::shared_ptr<Waiting> waiting_ = std::make_shared<Waiting>();
    std::shared_ptr<SerialQueue> processing_ = std::make_shared<SerialQueue>("image-processing");
};

} // namespace ombrivane
