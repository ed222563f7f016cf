// Reads HTTP/1.1 requests from a connection, one after the other.
#pragma once

#include "sandbox/wire/HttpMessage.h"
#include "sandbox/wire/TlsConnection.h"

#include <optional>
#include <string>

namespace ombrivane::sandbox {

class RequestReader {
public:
    explicit RequestReader(TlsConnection& connection) : connection_(connection) {}

    /// The next whole request, or none when the connection ended before one was complete. Throws `Refusal`
    /// for a request that cannot be read: no HTTP/1.1, a chunked body, or one too large.
    std::optional<HttpRequest> next();

private:
    bool readMore();

    TlsConnection& connection_;
    std::string unread_;
};

} // namespace ombrivane::sandbox
