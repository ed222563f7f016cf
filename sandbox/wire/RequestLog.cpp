#include "sandbox/wire/RequestLog.h"

namespace ombrivane::sandbox {

void RequestLog::connected() {
    const std::lock_guard lock(mutex_);
    ++counters_.connections;
}

void RequestLog::handshakeFailed() {
    const std::lock_guard lock(mutex_);
    ++counters_.handshakeFailures;
}

void RequestLog::record(const HttpRequest& request) {
    const std::lock_guard lock(mutex_);
    requests_.push_back({request.method, request.target, request.path, request.headers, request.body});
    counters_.requests = requests_.size();
}

void RequestLog::disregardConnection() {
    const std::lock_guard lock(mutex_);
    if (counters_.connections > 0) --counters_.connections;
}

void RequestLog::clear() {
    const std::lock_guard lock(mutex_);
    requests_.clear();
    counters_ = {};
}

std::vector<RecordedRequest> RequestLog::requests() const {
    const std::lock_guard lock(mutex_);
    return requests_;
}

Counters RequestLog::counters() const {
    const std::lock_guard lock(mutex_);
    return counters_;
}

} // namespace ombrivane::sandbox
