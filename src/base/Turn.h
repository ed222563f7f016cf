#pragma once

#include <functional>

namespace ombrivane {

/// One step of the component as a whole: a tap, an answer, a timer's tick, an assignment by a host or a
/// script. What is computed from fields is settled when the outermost turn of a thread ends, so that nobody
/// computes from the middle of a step, when one field is assigned and the one that belongs to it is not yet.
class Turn {
public:
    Turn();
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    /// Runs what waits for the end, and what that makes wait, in the order in which it was asked for. A step
    /// that is left by a fault is settled as well.
    ~Turn();

    /// Runs `settle` when the turn of this thread ends; at once where there is none.
    static void atEnd(std::function<void()> settle);
};

} // namespace ombrivane
