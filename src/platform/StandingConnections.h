#pragma once

#include "platform/Limits.h"
#include "platform/Socket.h"

#include <curl/curl.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace ombrivane {

/// Connections that are opened before the request is made that will use them. They stand at TCP: nothing is
/// sent on one, TLS included, until it is taken. Two stand at most, and one that nobody takes is closed. All
/// on the network's thread.
class StandingConnections {
public:
    /// Opens by `multi`, which outlives it. @param patience how long one stands that nobody takes
    explicit StandingConnections(CURLM* multi, std::chrono::milliseconds patience = limits::standing) :
        multi_(multi), patience_(patience) {}
    StandingConnections(const StandingConnections&) = delete;
    StandingConnections& operator=(const StandingConnections&) = delete;
    ~StandingConnections();

    /// Begins to open a connection to the host of `url`, unless one that is young enough stands or is coming.
    void open(const std::string& url);

    /// Takes over what libcurl has done with `handle`. False when the handle is none of those that open.
    bool opened(CURL* handle, CURLcode result);

    /// A connected socket to the host of `url` that its server has not left; the caller closes it.
    /// `noSocket` where there is none.
    Socket take(const std::string& url);

    /// Closes those that nobody took in time.
    void closeOld();

    /// Whether any stands or is coming, so that `closeOld` has to be called now and then.
    bool empty() const { return standing_.empty(); }

private:
    using Time = std::chrono::steady_clock::time_point;

    struct FreeHandle {
        void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
    };

    struct Standing {
        std::string server; ///< "host:port"
        Time since;
        std::unique_ptr<CURL, FreeHandle> opening{}; ///< until it is connected
        Socket socket = noSocket;
    };

    void close(Standing& standing);
    template <class Chosen> void closeWhere(const Chosen& chosen);

    CURLM* multi_;
    std::chrono::milliseconds patience_;
    std::vector<Standing> standing_;
};

} // namespace ombrivane
