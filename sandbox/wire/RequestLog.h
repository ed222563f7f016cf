// What reached the sandbox: every request that was read whole, and how many connections there were.
#pragma once

#include "sandbox/wire/HttpMessage.h"

#include <cstddef>
#include <mutex>
#include <string>
#include <vector>

namespace ombrivane::sandbox {

struct RecordedRequest {
    std::string method;
    std::string target; ///< path and query as they were sent
    std::string path;
    std::vector<HttpHeader> headers;
    std::string body; ///< the bytes as they were sent
};

struct Counters {
    std::size_t connections = 0;       ///< accepted, whatever came of them
    std::size_t handshakeFailures = 0; ///< of these, ended before TLS stood
    std::size_t requests = 0;          ///< read whole
};

/// Safe from every thread. Requests of the sandbox's own control paths are neither recorded nor counted, and
/// no more are connections that carry nothing else.
class RequestLog {
public:
    void connected();
    void handshakeFailed();
    void record(const HttpRequest& request);

    /// Takes back one connection: it turned out to serve a control path.
    void disregardConnection();

    void clear();

    [[nodiscard]] std::vector<RecordedRequest> requests() const;
    [[nodiscard]] Counters counters() const;

private:
    mutable std::mutex mutex_;
    std::vector<RecordedRequest> requests_;
    Counters counters_;
};

} // namespace ombrivane::sandbox
