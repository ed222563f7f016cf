#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace ombrivane {

/// The JSON of one element as the service sent it. It shares the bytes of the whole answer, which live as
/// long as any of its elements is held.
class RawData {
public:
    RawData(std::shared_ptr<const void> owner, std::string_view bytes) :
        owner_(std::move(owner)), bytes_(bytes) {}

    std::string_view bytes() const { return bytes_; }

    /// The same JSON without white space between its tokens, as it goes back to the service: of a list's
    /// offers one at most does. Empty where the bytes are no JSON.
    std::string minified() const;

    bool operator==(const RawData& other) const { return bytes_ == other.bytes_; }

private:
    std::shared_ptr<const void> owner_;
    std::string_view bytes_;
};

} // namespace ombrivane

template <> struct std::hash<ombrivane::RawData> {
    std::size_t operator()(const ombrivane::RawData& data) const noexcept {
        return std::hash<std::string_view>{}(data.bytes());
    }
};
