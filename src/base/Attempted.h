#pragma once

#include "base/Error.h"

#include <functional>
#include <optional>

namespace ombrivane {

/// What is thrown and knows which `Error` it is.
class ErrorSource {
public:
    virtual ~ErrorSource() = default;
    virtual Error error() const = 0;

protected:
    ErrorSource() = default;
    ErrorSource(const ErrorSource&) = default;
    ErrorSource& operator=(const ErrorSource&) = default;
};

namespace detail {

/// The exception that is being handled as an `Error`; a fault goes on.
Error currentError();

} // namespace detail

/// Runs `step`, which works on what came from outside, and tells what it threw: an `Error`, what knows its
/// `Error`, or any other exception, of memory that there is not too. A fault is no error and passes.
template <class Step> std::optional<Error> attempted(const Step& step) {
    try {
        step();
        return std::nullopt;
    } catch (...) {
        return detail::currentError();
    }
}

/// Runs a step at the bottom of a thread of our own, which nothing may leave. What the step held answers by
/// being let go.
void contained(const std::function<void()>& step);

} // namespace ombrivane
