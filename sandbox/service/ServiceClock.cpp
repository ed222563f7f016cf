#include "sandbox/service/ServiceClock.h"

namespace ombrivane::sandbox {

using namespace std::chrono;

ServiceClock::ServiceClock(std::optional<Instant> start, bool frozen) :
    frozen_(frozen), start_(start.value_or(floor<seconds>(system_clock::now()))) {}

Instant ServiceClock::now() const {
    const auto passed = frozen_ ? seconds(0) : floor<seconds>(steady_clock::now() - started_);
    return start_ + passed + seconds(advanced_.load());
}

void ServiceClock::advance(seconds time) { advanced_ += time.count(); }

} // namespace ombrivane::sandbox
