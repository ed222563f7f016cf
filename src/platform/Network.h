#pragma once

#include "platform/HttpRequest.h"

namespace ombrivane {

/// The way to the outside. Every completion is called exactly once, on a thread of the network and never from
/// inside of the call that started it; destruction ends what is under way with an error, delivered before the
/// destructor returns, and waits for nobody outside.
class Network {
public:
    Network() = default;
    Network(const Network&) = delete;
    Network& operator=(const Network&) = delete;
    virtual ~Network() = default;

    /// Sends `request` once, on a connection of its own that is not used again. No redirect is followed; the
    /// server's certificate must be trusted and name the host. Any thread.
    virtual void send(HttpRequest request, HttpCompletion completion) = 0;

    /// The process ends: from here on nothing is called any more, since those who would be may be gone. Once,
    /// on the thread that ends it.
    virtual void leave() {}

    /// A request to the host of `url` is likely within seconds: a network may open a connection for it, on
    /// which it sends nothing. Any thread.
    virtual void expect(const std::string& /*url*/) {}

    /// Fetches a picture at `url` over the shared session: neither token nor cookie goes out. An answer
    /// larger than the limit for pictures is an error. Any thread.
    virtual void fetchPicture(const std::string& url, HttpCompletion completion) = 0;
};

} // namespace ombrivane
