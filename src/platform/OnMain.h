#pragma once

#include "platform/Platform.h"
#include "support/Error.h"

#include <optional>
#include <utility>

namespace ombrivane {

/// A handler for a completion whose first act is the hop to the main queue. What `then` holds goes with it,
/// so that a screen never dies on a thread of the network.
template <class Result, class Then> auto onMain(Then then) {
    return [then = std::move(then)](Result result, std::optional<Error> error) mutable {
        mainQueue().async(
            [then = std::move(then), result = std::move(result), error = std::move(error)]() mutable {
                then(std::move(result), std::move(error));
            });
    };
}

} // namespace ombrivane
