#pragma once

#include "base/Error.h"
#include "platform/Limits.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace ombrivane {

/// One request to the booking service.
struct HttpRequest {
    std::string url;                                          ///< with its scheme: https
    std::string method = "GET";                               ///< as it is sent
    std::vector<std::pair<std::string, std::string>> headers; ///< name and value, in their order
    std::optional<std::string> body;                          ///< sent as it stands; none with nothing
    /// A long body in place of `body`: sent one behind the other, each let go of once it is sent.
    std::vector<std::string> pieces;
    std::chrono::seconds timeoutInterval = limits::idle;  ///< the longest silence
    std::chrono::seconds wholeInterval = limits::request; ///< the longest duration in all
    std::size_t answerBytes = limits::recordBytes;        ///< a longer answer is an error
};

/// What came back.
struct HttpAnswer {
    std::optional<std::string> data = {}; ///< the whole body; nothing when there was an error
    std::optional<Error> error = {};      ///< why there is no body
    int status = 0; ///< for logs alone: nothing is decided by it; 0 where no answer began
};

/// Called exactly once, on a thread of the network.
using HttpCompletion = std::function<void(HttpAnswer)>;

} // namespace ombrivane
