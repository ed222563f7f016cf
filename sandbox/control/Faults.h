// The vocabulary of faults: what each is called, how it is written, and what it does to an answer.
#pragma once

#include "sandbox/wire/HttpMessage.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace ombrivane::sandbox {

enum class FaultKind {
    Latency,
    Status,
    Refuse,
    Malformed,
    Truncate,
    Short,
    Drop,
    Reset,
    HalfStatusLine,
    Silence,
    WrongType,
    MissingKey,
    Extra,
    Redirect,
    Empty,
    Scalar,
    Huge,
    Endless,
    Trickle,
    Deep,
    Nul,
    InvalidUtf8,
    GzipBomb,
};

/// How a fault is written, for reading it and for the help text.
struct FaultForm {
    FaultKind kind;
    std::string_view name;
    std::string_view value; ///< what stands behind "=", empty for a fault without a value; in capitals
    std::string_view meaning;
};

const std::vector<FaultForm>& faultForms();

struct Fault {
    std::string path; ///< "/get-token", or "*" for every path
    FaultKind kind = FaultKind::Malformed;
    std::string text;                                            ///< the value as it was written
    std::uint64_t number = 0;                                    ///< the value of a fault that takes a number
    std::size_t times = std::numeric_limits<std::size_t>::max(); ///< how often it happens
    std::size_t after = 0;                                       ///< how many requests it lets pass first
    std::string written = {};                                    ///< the whole fault as it was written
    std::string_view scenario = {};                              ///< to which it belongs; empty for none
};

/// Reads "PATH KIND[=VALUE] [times=N] [after=N]". Throws `std::invalid_argument` with a sentence that says
/// what is wrong.
Fault parseFault(std::string_view text);

/// Whether the request is turned down before the service sees it.
bool preventsTheOperation(FaultKind kind);

/// The answer with the fault in it. Faults that belong to the wire (`planDelivery`) leave it as it is.
HttpAnswer withFault(HttpAnswer answer, const Fault& fault);

} // namespace ombrivane::sandbox
