// What reached the sandbox: every request that was read whole, and how many connections there were.
#pragma once

#include "sandbox/wire/HttpMessage.h"

#include <chrono>
#include <cstddef>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane::sandbox {

/// One request, and what became of it.
struct RecordedRequest {
    std::string method;              ///< "POST"
    std::string target;              ///< path and query as they were sent
    std::string path;                ///< up to the question mark
    std::vector<HttpHeader> headers; ///< in the order in which they came
    std::string body;                ///< the bytes as they were sent
    int status = 0;                  ///< of the answer; 0 where none was begun
    std::string refusal = {}; ///< what was wrong with it, in the words of the answer; empty for a success
    std::vector<std::string> faults = {}; ///< those that it met, as they were written
    /// From the last byte of the request to the last byte of the answer; none while that is under way.
    std::optional<std::chrono::milliseconds> took = {};
};

/// How much reached the sandbox.
struct Counters {
    std::size_t connections = 0;       ///< accepted, whatever came of them
    std::size_t handshakeFailures = 0; ///< of these, ended before TLS stood
    std::size_t requests = 0;          ///< read whole
};

/// Safe from every thread. Requests of the sandbox's own control paths are neither recorded nor counted, and
/// no more are connections that carry nothing else.
class RequestLog {
public:
    /// A connection was accepted.
    void connected();
    /// One ended before TLS stood.
    void handshakeFailed();
    /// A request was read whole. @return its number, by which `complete` and `sent` know it
    std::size_t record(const HttpRequest& request);
    /// What it is answered with, and the faults that it met. Nothing where the log was cleared meanwhile.
    void complete(std::size_t number, int status, const std::string& refusal,
                  std::vector<std::string> faults);
    /// Its answer has gone out, or was broken off. Nothing where the log was cleared meanwhile.
    void sent(std::size_t number, std::chrono::milliseconds took);

    /// Takes back one connection: it turned out to serve a control path.
    void disregardConnection();

    /// Forgets all requests, and counts from nothing.
    void clear();

    /// All requests, in the order in which they came.
    [[nodiscard]] std::vector<RecordedRequest> requests() const;
    /// The last of them, `most` at most, without headers and bodies: what may be shown.
    [[nodiscard]] std::vector<RecordedRequest> outlines(std::size_t most) const;
    /// How many there were of each.
    [[nodiscard]] Counters counters() const;

private:
    RecordedRequest* numbered(std::size_t number);

    mutable std::mutex mutex_;
    std::vector<RecordedRequest> requests_;
    std::size_t cleared_ = 0; ///< how many were recorded before those that are held
    Counters counters_;
};

} // namespace ombrivane::sandbox
