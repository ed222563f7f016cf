#pragma once

#include "support/Api.h"

#include <string>
#include <string_view>

namespace ombrivane {

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
};

/// Drops every line.
class SilentDiagnostics final : public Diagnostics {
public:
    void print(std::string_view /*line*/) override {}
};

/// Writes each line to the standard output.
class OMBRIVANE_API PrintedDiagnostics final : public Diagnostics {
public:
    void print(std::string_view line) override;
};

} // namespace ombrivane
