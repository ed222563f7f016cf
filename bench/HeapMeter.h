#pragma once

#include <cstddef>

namespace ombrivane::bench {

/// Counts the bytes that the heap holds more than when the meter was made, as the allocator rounds them. This
/// program's operators new and delete keep the count. One meter at a time, single thread.
class HeapMeter {
public:
    HeapMeter();
    HeapMeter(const HeapMeter&) = delete;
    HeapMeter& operator=(const HeapMeter&) = delete;
    ~HeapMeter();

    std::size_t held() const;
};

} // namespace ombrivane::bench
