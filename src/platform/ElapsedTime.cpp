#include "platform/ElapsedTime.h"

#if defined(__APPLE__)
#include <cstdint>
#include <mach/mach_time.h>
#else
#include <ctime>
#endif

namespace ombrivane {

using std::chrono::duration_cast;
using std::chrono::milliseconds;

milliseconds elapsedTime() {
#if defined(__APPLE__)
    static const mach_timebase_info_data_t base = [] {
        mach_timebase_info_data_t read{};
        mach_timebase_info(&read);
        return read;
    }();
    // In two parts, as the product of the whole overflows after some weeks.
    const std::uint64_t ticks = mach_continuous_time();
    const std::uint64_t nanoseconds =
        ticks / base.denom * base.numer + ticks % base.denom * base.numer / base.denom;
    return duration_cast<milliseconds>(std::chrono::nanoseconds(nanoseconds));
#elif defined(CLOCK_BOOTTIME)
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return std::chrono::seconds(now.tv_sec) +
           duration_cast<milliseconds>(std::chrono::nanoseconds(now.tv_nsec));
#else
    return duration_cast<milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
#endif
}

} // namespace ombrivane
