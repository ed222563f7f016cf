#pragma once

#include "base/Api.h"

#include <string>
#include <string_view>

namespace ombrivane {

/// A call of the booking service that failed: by keys, never by values, so that it may be written anywhere.
struct OMBRIVANE_API FailedCall {
    std::string_view endpoint;      ///< the operation, "/reservation" for instance
    std::string_view domain;        ///< with `code` as in `base/ErrorDomains.h`
    int code = 0;                   ///< tells failures of one domain apart
    std::string_view developerText; ///< what was wrong, where more is known: "data.accessToken: is missing"

    /// As one line: "/get-token failed: Decoding 0, data.accessToken: is missing".
    std::string line() const;
};

/// Where the component's diagnostic lines go. By default nowhere: a guest prints nothing in its host's
/// process. A line holds itinerary data at most, never a secret or a person.
class Diagnostics {
public:
    Diagnostics() = default;
    Diagnostics(const Diagnostics&) = delete;
    Diagnostics& operator=(const Diagnostics&) = delete;
    virtual ~Diagnostics() = default;

    /// One line without its end. Any thread.
    virtual void print(std::string_view line) = 0;

    /// A call has failed; prints its line. Any thread.
    virtual void callFailed(const FailedCall& call) { print(call.line()); }
};

/// Drops every line.
class SilentDiagnostics final : public Diagnostics {
public:
    void print(std::string_view /*line*/) override {}
    void callFailed(const FailedCall& /*call*/) override {}
};

/// Writes each line to the standard output.
class OMBRIVANE_API PrintedDiagnostics final : public Diagnostics {
public:
    void print(std::string_view line) override;
};

} // namespace ombrivane
