#pragma once

#include "platform/Limits.h"

#include <cstddef>

namespace ombrivane {

/// The memory that reading one answer may take beyond the answer's own bytes. It is paid for before it is
/// taken, so that an answer which asks for more is an error in bounded memory.
class DecodeRoom {
public:
    explicit DecodeRoom(std::size_t bytes = limits::structureBytes) : limit_(bytes), left_(bytes) {}

    /// @throws DecodeError when there is not so much left
    void take(std::size_t bytes) {
        if (bytes > left_) refuse();
        left_ -= bytes;
    }
    /// A list of `count` elements of `size` bytes each. @throws DecodeError also for a list that is too long
    void takeList(std::size_t count, std::size_t size) {
        checkCount(count);
        take(count * size);
    }
    /// A record of `size` bytes that takes memory of its own.
    void takeRecord(std::size_t size) { take(size + overhead); }
    /// A text, which takes memory of its own when it is long.
    void takeText(std::size_t length) {
        if (length >= shortText) take(length + overhead);
    }

    /// @throws DecodeError for more elements than a list may have
    static void checkCount(std::size_t count) {
        if (count > limits::listElements) refuseCount();
    }

private:
    static constexpr std::size_t shortText = 16;
    static constexpr std::size_t overhead = 16;

    [[noreturn]] void refuse() const;
    [[noreturn]] static void refuseCount();

    std::size_t limit_;
    std::size_t left_;
};

} // namespace ombrivane
