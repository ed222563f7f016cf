#include "records/DecodeError.h"

#include "base/ErrorDomains.h"

#include <fmt/core.h>

namespace ombrivane {

void DecodeError::within(std::string_view key) {
    const bool joined = !path_.empty() && path_.front() != '[';
    path_ = std::string(key) + (joined ? "." : "") + path_;
}

void DecodeError::within(std::size_t index) {
    const bool joined = !path_.empty() && path_.front() != '[';
    path_ = fmt::format("[{}]{}{}", index, joined ? "." : "", path_);
}

Error DecodeError::error() const {
    return {errorDomain::decoding, 0, description_, path_.empty() ? reason_ : path_ + ": " + reason_};
}

} // namespace ombrivane
