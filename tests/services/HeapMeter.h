#pragma once

#include <cstddef>
#include <optional>

namespace ombrivane {

/// Watches the heap while it lives: this program's operators new and delete keep the count. One meter at a
/// time.
class HeapMeter {
public:
    /// @param refused the allocation, counted from none, that fails for once
    explicit HeapMeter(std::optional<std::size_t> refused = std::nullopt);
    HeapMeter(const HeapMeter&) = delete;
    HeapMeter& operator=(const HeapMeter&) = delete;
    ~HeapMeter();

    /// The most bytes that were held at a time beyond what was held when the meter was made.
    std::size_t peak() const;
    /// Whether the allocation that was to fail has been asked for.
    bool hasRefused() const;
};

} // namespace ombrivane
