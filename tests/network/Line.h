#pragma once

#include "platform/CurlNetwork.h"
#include "sandbox/Sandbox.h"

#include <atomic>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace ombrivane::network {

constexpr const char* accessToken = "token-of-the-customer";
constexpr const char* passengers = R"({"passengers":[{"lastName":"Sherpa"}]})";

/// What a server does, as the sandbox's fault, and the code of the error that it has to end in.
struct FaultCase {
    const char* fault;
    int code; ///< 0 where the answer arrives

    friend std::ostream& operator<<(std::ostream& out, const FaultCase& row) { return out << row.fault; }
};

/// What a test finds where the answer should be when none came in time.
inline const Error noAnswer{"Test", -1, "no answer in time"};

/// Starts a request with the completion that it is given.
using Starting = std::function<void(HttpCompletion)>;

/// Waits for the answer of what `start` starts.
HttpAnswer awaited(const Starting& start);

/// The number of the answers that came, each of which is checked to be one of the two kinds.
class Tally {
public:
    /// To be handed out once; a second call counts as well.
    HttpCompletion completion();
    int answers() const { return *answers_; }
    int errors() const { return *errors_; }

private:
    std::shared_ptr<std::atomic<int>> answers_ = std::make_shared<std::atomic<int>>(0);
    std::shared_ptr<std::atomic<int>> errors_ = std::make_shared<std::atomic<int>>(0);
};

/// A server with the given faults and the real network that trusts it.
class Line {
public:
    explicit Line(const std::vector<std::string>& faults = {});

    sandbox::Sandbox& server() { return server_; }
    CurlNetwork& network() { return *network_; }
    void destroyNetwork() { network_.reset(); }

    std::string url(const std::string& path) const { return server_.address() + path; }
    /// A POST of passengers with the token.
    HttpRequest reservation() const;

    HttpAnswer send(const HttpRequest& request);
    HttpAnswer fetchPicture(const std::string& path);
    /// Waits until the server has read `count` requests; tells whether it has.
    bool serverHasRead(std::size_t count) const;
    /// Waits until the server has accepted `count` connections; tells whether it has.
    bool serverHasAccepted(std::size_t count) const;

private:
    sandbox::Sandbox server_;
    std::unique_ptr<CurlNetwork> network_;
};

} // namespace ombrivane::network
