#pragma once

#include "platform/Image.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace ombrivane {

/// The fetches of pictures: one for an address, however many wait for it, and a few at a time. Main thread
/// only.
class ImageFetches {
public:
    using Receiver = std::function<void(const std::optional<Image>&)>;

    ImageFetches();

    /// Fetches the picture at `url`, or joins the fetch that is asked for already, and calls `receive` once,
    /// later, on the main queue, with nothing when the fetch failed or its answer is no picture. Decoding
    /// happens on the one thread "image-processing".
    ///
    /// A fetch that still waits for its turn is dropped, with its receivers, when everybody is gone for whom
    /// it was asked: what was scrolled past goes before nothing that is in sight. One that has begun goes on.
    void fetch(const std::string& url, std::weak_ptr<const void> forWhom, Receiver receive);

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace ombrivane
