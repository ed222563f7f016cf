#include "platform/CurlNetwork.h"

#include "platform/CurlTransfer.h"

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
        thread_ = std::thread([this] { run(); });
    }

    ~Worker() {
        {
            const std::lock_guard lock(mutex_);
            stopping_ = true;
        }
        curl_multi_wakeup(multi_.get());
        thread_.join();
    }

    void add(std::unique_ptr<CurlTransfer> transfer) {
        {
            const std::lock_guard lock(mutex_);
            arrived_.push_back(std::move(transfer));
        }
        curl_multi_wakeup(multi_.get());
    }

private:
    using Transfers = std::vector<std::unique_ptr<CurlTransfer>>;

    Transfers takeArrived() {
        const std::lock_guard lock(mutex_);
        return std::exchange(arrived_, {});
    }

    bool isStopping() {
        const std::lock_guard lock(mutex_);
        return stopping_;
    }

    void startArrived() {
        for (auto& transfer : takeArrived()) {
            CURL* handle = transfer->handle();
            if (curl_multi_add_handle(multi_.get(), handle) == CURLM_OK)
                running_.emplace(handle, std::move(transfer));
            else
                transfer->complete(CURLE_FAILED_INIT);
        }
    }

    void finishDone() {
        int left = 0;
        while (const CURLMsg* message = curl_multi_info_read(multi_.get(), &left)) {
            if (message->msg != CURLMSG_DONE) continue;
            const CURLcode result = message->data.result;
            auto finished = running_.extract(message->easy_handle);
            curl_multi_remove_handle(multi_.get(), finished.key());
            finished.mapped()->complete(result);
        }
    }

    void run() {
        while (!isStopping()) {
            startArrived();
            int active = 0;
            curl_multi_perform(multi_.get(), &active);
            finishDone();
            // libcurl wakes up for what it waits for itself; whether an answer is silent is looked at here.
            const int pause = running_.empty() ? std::numeric_limits<int>::max() : 1000;
            curl_multi_poll(multi_.get(), nullptr, 0, pause, nullptr);
        }
        for (auto& [handle, transfer] : running_) {
            curl_multi_remove_handle(multi_.get(), handle);
            transfer->abandon();
        }
        running_.clear();
        // A completion may ask for more, and so may the answer to that; nothing is left without one.
        for (auto left = takeArrived(); !left.empty(); left = takeArrived())
            for (auto& transfer : left)
                transfer->abandon();
    }

    struct FreeMulti {
        void operator()(CURLM* multi) const { curl_multi_cleanup(multi); }
    };

    std::unique_ptr<CURLM, FreeMulti> multi_{curl_multi_init()};
    std::mutex mutex_;
    Transfers arrived_;
    std::map<CURL*, std::unique_ptr<CurlTransfer>> running_;
    bool stopping_ = false;
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

void CurlNetwork::fetchPicture(const std::string& url, HttpCompletion completion) {
    HttpRequest request;
    request.url = url;
    request.answerBytes = limits::logoBytes;
    auto transfer = std::make_unique<CurlTransfer>(std::move(request), std::move(completion), settings_);
    transfer->shareConnections();
    worker_->add(std::move(transfer));
}

} // namespace ombrivane
