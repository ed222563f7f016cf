#include "base/Turn.h"

#include "base/Fault.h"

#include <deque>

namespace ombrivane {
namespace {

struct Turns {
    int depth = 0;
    std::deque<std::function<void()>> waiting;
};

// Only the main thread has something to settle; a completion on a thread of the network is a turn of its own.
thread_local Turns turns;

} // namespace

Turn::Turn() { ++turns.depth; }

Turn::~Turn() {
    while (turns.depth == 1 && !turns.waiting.empty()) {
        const auto settle = std::move(turns.waiting.front());
        turns.waiting.pop_front();
        try {
            settle();
        } catch (const Fault&) { // reported already; what else waits is settled
        }
    }
    --turns.depth;
}

void Turn::atEnd(std::function<void()> settle) {
    const Turn turn;
    turns.waiting.push_back(std::move(settle));
}

} // namespace ombrivane
