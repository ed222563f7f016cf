#pragma once

#include "base/Api.h"
#include "platform/CurlSettings.h"
#include "platform/Network.h"

#include <memory>
#include <string>

namespace ombrivane {

/// The network by libcurl: one thread, one handle per request.
///
/// A request of the service gets a connection of its own that is closed after it, so nothing is ever sent
/// twice. The connection of an expected one is opened ahead, and takes up the TLS session of one before it.
/// The platform's trust store decides over certificates, or the file that a developer names. The environment
/// has no say: no proxy, no key log and no older TLS comes from there.
class OMBRIVANE_API CurlNetwork final : public Network {
public:
    /// Starts the network's thread.
    explicit CurlNetwork(CurlSettings settings = {});
    ~CurlNetwork() override;

    void send(HttpRequest request, HttpCompletion completion) override;
    void leave() override;
    void expect(const std::string& url) override;
    void fetchPicture(const std::string& url, HttpCompletion completion) override;

private:
    class Worker;
    CurlSettings settings_;
    std::unique_ptr<Worker> worker_;
};

} // namespace ombrivane
