#pragma once

#include "base/Attempted.h"
#include "base/Error.h"
#include "base/ErrorDomains.h"
#include "base/ErrorTexts.h"
#include "base/Fault.h"

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace ombrivane {

/// The one answer of an operation: a result and, when it failed, an error. Called exactly once: a second call
/// is a fault, and one that is dropped without a call answers by itself with an error, so that nobody waits
/// for ever. A handler that throws hears once more, of the empty result and what it threw. Any thread.
template <class Result> class Completion {
public:
    using Handler = std::function<void(Result, std::optional<Error>)>;

    // NOLINTNEXTLINE(google-explicit-constructor): a lambda is what callers have
    template <class Callable>
    requires std::is_invocable_v<Callable, Result, std::optional<Error>> Completion(Callable handler) :
        state_(std::make_shared<State>(Handler(std::move(handler)), 1)) {}

    /// For the one operation that may answer a second time.
    static Completion twice(Handler handler) {
        Completion completion{Handler(nullptr)};
        completion.state_ = std::make_shared<State>(std::move(handler), 2);
        return completion;
    }

    void operator()(Result result, std::optional<Error> error = std::nullopt) const {
        state_->call(std::move(result), std::move(error));
    }

    /// The empty result with an error.
    void fail(Error error) const { (*this)(Result(), std::move(error)); }

private:
    struct State {
        State(Handler handling, int calls) : handler(std::move(handling)), left(calls) {}
        State(const State&) = delete;
        State& operator=(const State&) = delete;
        ~State() {
            if (called || !handler) return;
            contained([this] {
                handler(Result(),
                        Error{errorDomain::service,
                              static_cast<int>(ServiceError::unanswered),
                              errorText::answerMissing});
            });
        }

        void call(Result result, std::optional<Error> error) {
            const int remaining = --left;
            if (remaining < 0) fatalFault("a completion was called too often");
            called = true;
            // The last call lets go of what the handler holds, on the thread that it hands it to.
            Handler now = remaining == 0 ? std::exchange(handler, nullptr) : handler;
            const auto thrown = attempted([&] { now(std::move(result), std::move(error)); });
            if (thrown) attempted([&] { now(Result(), thrown); });
        }

        Handler handler;
        std::atomic<int> left;
        std::atomic<bool> called = false;
    };

    std::shared_ptr<State> state_;
};

} // namespace ombrivane
