#include "sandbox/wire/RequestLog.h"

#include <algorithm>
#include <utility>

namespace ombrivane::sandbox {

void RequestLog::connected() {
    const std::lock_guard lock(mutex_);
    ++counters_.connections;
}

void RequestLog::handshakeFailed() {
    const std::lock_guard lock(mutex_);
    ++counters_.handshakeFailures;
}

std::size_t RequestLog::record(const HttpRequest& request) {
    const std::lock_guard lock(mutex_);
    requests_.push_back({request.method, request.target, request.path, request.headers, request.body});
    counters_.requests = requests_.size();
    return cleared_ + requests_.size() - 1;
}

RecordedRequest* RequestLog::numbered(std::size_t number) {
    return number >= cleared_ && number - cleared_ < requests_.size() ? &requests_[number - cleared_]
                                                                      : nullptr;
}

void RequestLog::complete(std::size_t number, int status, const std::string& refusal,
                          std::vector<std::string> faults) {
    const std::lock_guard lock(mutex_);
    RecordedRequest* request = numbered(number);
    if (request == nullptr) return;
    request->status = status;
    request->refusal = refusal;
    request->faults = std::move(faults);
}

void RequestLog::sent(std::size_t number, std::chrono::milliseconds took) {
    const std::lock_guard lock(mutex_);
    if (RecordedRequest* request = numbered(number)) request->took = took;
}

void RequestLog::disregardConnection() {
    const std::lock_guard lock(mutex_);
    if (counters_.connections > 0) --counters_.connections;
}

void RequestLog::clear() {
    const std::lock_guard lock(mutex_);
    cleared_ += requests_.size();
    requests_.clear();
    counters_ = {};
}

std::vector<RecordedRequest> RequestLog::requests() const {
    const std::lock_guard lock(mutex_);
    return requests_;
}

std::vector<RecordedRequest> RequestLog::outlines(std::size_t most) const {
    const std::lock_guard lock(mutex_);
    std::vector<RecordedRequest> last;
    for (std::size_t i = requests_.size() - std::min(most, requests_.size()); i < requests_.size(); ++i) {
        const RecordedRequest& request = requests_[i];
        last.push_back({.method = request.method,
                        .target = request.target,
                        .path = request.path,
                        .headers = {},
                        .body = {},
                        .status = request.status,
                        .refusal = request.refusal,
                        .faults = request.faults,
                        .took = request.took});
    }
    return last;
}

Counters RequestLog::counters() const {
    const std::lock_guard lock(mutex_);
    return counters_;
}

} // namespace ombrivane::sandbox
