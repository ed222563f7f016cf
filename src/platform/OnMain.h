#pragma once

#include "base/Error.h"
#include "platform/Platform.h"

#include <memory>
#include <optional>
#include <utility>

namespace ombrivane {

/// A handler for a completion whose first act is the hop to the main queue. What `then` holds goes with it,
/// so that a screen never dies on a thread of the network.
template <class Result, class Then> auto onMain(Then then) {
    return [then = std::optional(std::move(then))](Result result, std::optional<Error> error) mutable {
        // Handed on only once, also where the hop failed.
        if (!then) return;
        mainQueue().async(
            [then = *std::exchange(then, std::nullopt),
             result = std::move(result),
             error = std::move(error)]() mutable { then(std::move(result), std::move(error)); });
    };
}

/// A hold on `object` that any thread may let go of: the object itself is let go on the main queue. For what
/// may be called more than once and so cannot hand over what it holds.
inline std::shared_ptr<void> heldForMain(std::shared_ptr<void> object) {
    return {nullptr, [object = std::move(object)](void* /*none*/) mutable {
                mainQueue().async([last = std::move(object)] {});
            }};
}

} // namespace ombrivane
