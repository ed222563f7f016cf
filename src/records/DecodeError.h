#pragma once

#include "base/Attempted.h"
#include "base/ErrorTexts.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace ombrivane {

/// A record that did not decode: where it failed and why. Thrown inside of one decode and turned into an
/// `Error` before a completion hears of it.
class DecodeError : public std::exception, public ErrorSource {
public:
    /// @param reason what was wrong, for the developer
    /// @param description what the customer may read
    explicit DecodeError(std::string reason, std::string description = errorText::answerNotUnderstood) :
        reason_(std::move(reason)), description_(std::move(description)) {}

    /// Called while the failure climbs out of the key that holds what failed.
    void within(std::string_view key);
    /// The same for a position of an array.
    void within(std::size_t index);

    const std::string& path() const { return path_; }
    const char* what() const noexcept override { return reason_.c_str(); }

    /// With "path: reason" for the developer.
    Error error() const override;

private:
    std::string path_;
    std::string reason_;
    std::string description_;
};

} // namespace ombrivane
