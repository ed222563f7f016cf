#pragma once

#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "platform/WorkItem.h"
#include "words/Text.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace ombrivane {

/// What a customer waits for, and what may be done about it where it takes long.
struct Awaited {
    Text what;
    Text wayOut;
};

/// How a screen waits: first with shapes alone, then in words for what, and at last with a way out. What ends
/// at once is not spoken of, and what has ended is not spoken of any more. Part of a screen; main thread.
class Wait {
public:
    /// Until words say what is waited for.
    static constexpr std::chrono::milliseconds untilWords{1000};
    /// Until a second sentence says that it takes long, and offers a way out.
    static constexpr std::chrono::milliseconds untilWayOut{8000};

    /// `awaited` computes from fields what is waited for now, nothing where nothing is.
    Wait(Fields& owner, std::function<std::optional<Awaited>()> awaited);
    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;

    /// The same is waited for anew: what was counted so far is forgotten.
    void restart();

private:
    enum class Stage { shapes, words, wayOut };

    int awaitedNow() const;
    std::string told(Stage from, Text Awaited::*text) const;

    std::function<std::optional<Awaited>()> awaited_;
    Fields unkeyed_;
    Published<int> stage_{unkeyed_, "stage"};
    WorkItem words_;
    WorkItem wayOut_;
    Derived<int> awaitedNow_{unkeyed_, "awaitedNow", [this] { return awaitedNow(); }};
    Subscription followed_ = awaitedNow_.observe([this] { restart(); });

public:
    /// What is waited for; empty where nothing is, and in the first second.
    Derived<std::string> waitText;
    /// That it takes long, with the way out; empty before that.
    Derived<std::string> waitHint;
};

} // namespace ombrivane
