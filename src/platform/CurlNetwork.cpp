#include "platform/CurlNetwork.h"

#include "platform/CurlTransfer.h"
#include "platform/StandingConnections.h"

#include <limits>
#include <map>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace ombrivane {
/// The network's thread. New transfers are handed over under a lock; all else is the thread's own.
class CurlNetwork::Worker {
public:
    Worker() {
        // Connections that are kept for the next picture; without a word, libcurl keeps more of them the more
        // transfers there were.
        curl_multi_setopt(multi_.get(), CURLMOPT_MAXCONNECTS, static_cast<long>(limits::pictureTransfers));
        // A connection that follows another takes up its TLS session: half of a request's processor time.
        curl_share_setopt(sessions_.get(), CURLSHOPT_SHARE, CURL_LOCK_DATA_SSL_SESSION);
        thread_ = std::thread([this] { run(); });
    }

    ~Worker() { stop(End::abandoning); }

    /// What is under way stays as it stands, and nobody hears of it.
    void leave() { stop(End::leaving); }

    void add(std::unique_ptr<CurlTransfer> transfer) {
        {
            const std::lock_guard lock(mutex_);
            asked_.transfers.push_back(std::move(transfer));
        }
        curl_multi_wakeup(multi_.get());
    }

    void expect(const std::string& url) {
        {
            const std::lock_guard lock(mutex_);
            asked_.expected = url;
        }
        curl_multi_wakeup(multi_.get());
    }

private:
    using Transfers = std::vector<std::unique_ptr<CurlTransfer>>;

    /// What was asked for since the last turn, in one piece: a request, and then the one that is likely to
    /// follow.
    struct Asked {
        Transfers transfers;
        std::string expected; ///< the address of a request that is likely soon; empty for none
    };

    Asked takeAsked() {
        const std::lock_guard lock(mutex_);
        return std::exchange(asked_, {});
    }

    enum class End { none, abandoning, leaving };

    void stop(End end) {
        if (!thread_.joinable()) return;
        {
            const std::lock_guard lock(mutex_);
            end_ = end;
        }
        curl_multi_wakeup(multi_.get());
        thread_.join();
    }

    End end() {
        const std::lock_guard lock(mutex_);
        return end_;
    }

    void start(std::unique_ptr<CurlTransfer> transfer) {
        CURL* handle = transfer->handle();
        curl_easy_setopt(handle, CURLOPT_SHARE, sessions_.get());
        if (curl_multi_add_handle(multi_.get(), handle) == CURLM_OK)
            running_.emplace(handle, std::move(transfer));
        else
            transfer->complete(CURLE_FAILED_INIT);
    }

    void startAll(Transfers transfers) {
        for (auto& transfer : transfers) {
            if (transfer->isIsolated()) transfer->useConnection(standing_.take(transfer->url()));
            start(std::move(transfer));
        }
    }

    void advance() {
        int left = 0;
        curl_multi_perform(multi_.get(), &left);
        while (const CURLMsg* message = curl_multi_info_read(multi_.get(), &left)) {
            if (message->msg != CURLMSG_DONE) continue;
            const CURLcode result = message->data.result;
            if (standing_.opened(message->easy_handle, result)) continue;
            auto finished = running_.extract(message->easy_handle);
            curl_multi_remove_handle(multi_.get(), finished.key());
            if (finished.mapped()->canStartAfresh(result))
                start(std::move(finished.mapped()));
            else
                finished.mapped()->complete(result);
        }
    }

    void run() {
        while (end() == End::none) {
            auto [transfers, expected] = takeAsked();
            advance(); // what has connected before a transfer arrived can be taken by it
            startAll(std::move(transfers));
            // One that a transfer has just taken does not stand in the way of the next.
            if (!expected.empty()) standing_.open(expected);
            standing_.closeOld();
            advance();
            // libcurl wakes up for what it waits for itself; whether an answer is silent, and whether a
            // connection has stood too long, is looked at here.
            const int pause = running_.empty() && standing_.empty() ? std::numeric_limits<int>::max() : 1000;
            curl_multi_poll(multi_.get(), nullptr, 0, pause, nullptr);
        }
        if (end() == End::leaving) return;
        for (auto& [handle, transfer] : running_) {
            curl_multi_remove_handle(multi_.get(), handle);
            transfer->abandon();
        }
        running_.clear();
        // A completion may ask for more, and so may the answer to that; nothing is left without one.
        for (auto left = takeAsked().transfers; !left.empty(); left = takeAsked().transfers)
            for (auto& transfer : left)
                transfer->abandon();
    }

    struct FreeMulti {
        void operator()(CURLM* multi) const { curl_multi_cleanup(multi); }
    };

    struct FreeShare {
        void operator()(CURLSH* share) const { curl_share_cleanup(share); }
    };

    /// Without locks: transfers join and leave it on the network's thread.
    std::unique_ptr<CURLSH, FreeShare> sessions_{curl_share_init()};
    std::unique_ptr<CURLM, FreeMulti> multi_{curl_multi_init()};
    StandingConnections standing_{multi_.get()};
    std::mutex mutex_;
    Asked asked_;
    std::map<CURL*, std::unique_ptr<CurlTransfer>> running_;
    End end_ = End::none;
    std::thread thread_;
};

CurlNetwork::CurlNetwork(CurlSettings settings) :
    settings_(std::move(settings)), worker_(std::make_unique<Worker>()) {}

CurlNetwork::~CurlNetwork() = default;

void CurlNetwork::send(HttpRequest request, HttpCompletion completion) {
    auto transfer = std::make_unique<CurlTransfer>(std::move(request), std::move(completion), settings_);
    transfer->isolate();
    worker_->add(std::move(transfer));
}

void CurlNetwork::leave() { worker_->leave(); }

void CurlNetwork::expect(const std::string& url) {
    if (settings_.proxy.empty()) worker_->expect(url); // a proxy's connections are the proxy's to open
}

void CurlNetwork::fetchPicture(const std::string& url, HttpCompletion completion) {
    HttpRequest request;
    request.url = url;
    request.answerBytes = limits::logoBytes;
    auto transfer = std::make_unique<CurlTransfer>(std::move(request), std::move(completion), settings_);
    transfer->shareConnections();
    worker_->add(std::move(transfer));
}

} // namespace ombrivane
