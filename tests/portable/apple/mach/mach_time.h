// The clock that goes on while the device sleeps: ticks, and how many nanoseconds a tick has, as a fraction.
#pragma once

#include <cstdint>

struct mach_timebase_info {
    std::uint32_t numer;
    std::uint32_t denom;
};
using mach_timebase_info_data_t = mach_timebase_info;

extern "C" int mach_timebase_info(mach_timebase_info_data_t* info);
extern "C" std::uint64_t mach_continuous_time();
