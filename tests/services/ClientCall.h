#pragma once

#include "records/AnyFlight.h"
#include "services/Outcome.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// One operation of a client: what it sends, and what it makes of a captured answer.
struct ClientCall {
    std::string name;
    std::string method;
    std::string target;              ///< behind the host and the prefix
    std::optional<std::string> body; ///< as it is sent
    std::string answer;              ///< name of the captured answer
    Json result;                     ///< what the completion makes of it
    Json empty;                      ///< what it hears besides an error
    std::function<void(Outcome&)> start;
};

/// The operations of all clients with arguments of the captured answers.
std::vector<ClientCall> clientCalls();

/// The n-th offer of a captured search with its `rawData`.
AnyFlight capturedOneWay(const std::string& pointer = "/data/0", const std::string& file = "search-oneway");
AnyFlight capturedRoundTrip();

} // namespace ombrivane
