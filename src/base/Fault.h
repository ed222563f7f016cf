#pragma once

#include "base/Api.h"

#include <exception>
#include <functional>
#include <string>

namespace ombrivane {

/// A mistake of the program or a broken promise between its parts. It unwinds to the step that was running,
/// after the handler has been told; nothing but `guarded` catches it.
class OMBRIVANE_API Fault : public std::exception {
public:
    /// For `fatalFault`, which reports before it throws.
    explicit Fault(std::string text) : text_(std::move(text)) {}
    /// What was wrong and where.
    const char* what() const noexcept override { return text_.c_str(); }

private:
    std::string text_;
};

/// Told what and where. A handler that returns keeps the process; the component should then be dropped.
using FaultHandler = std::function<void(const std::string& text)>;

/// Installs the host's handler and returns the one before. Without a handler a fault writes its text to the
/// standard error stream and aborts the process. Any thread.
OMBRIVANE_API FaultHandler setFaultHandler(FaultHandler handler);

/// Reports a fault and never returns: the process ends, or, where a handler is installed and returns, the
/// step that was running is left by a `Fault`.
[[noreturn]] OMBRIVANE_API void fatalFault(const std::string& what, const char* file = __builtin_FILE(),
                                           int line = __builtin_LINE());

/// Runs one step of the component (a queued step, a tap, a completion) as a `Turn` and keeps a `Fault` that
/// was already reported from passing into code of the host or of a library.
/// @return false when the step was left by a fault.
OMBRIVANE_API bool guarded(const std::function<void()>& step);

} // namespace ombrivane
