#pragma once

#include "images/ImageCache.h"

#include <cstddef>
#include <list>
#include <string>
#include <unordered_map>

namespace ombrivane {

/// Keeps pictures in memory. Beyond either limit the one that was not used for longest goes first.
class TemporaryImageCache final : public ImageCache {
public:
    static constexpr std::size_t countLimit = 100;
    /// In bytes of decoded points.
    static constexpr std::size_t totalCostLimit = 104'857'600;

    std::optional<Image> image(const std::string& url) override;
    void setImage(const std::string& url, std::optional<Image> image) override;

private:
    struct Entry {
        std::string url;
        Image image;
    };
    using Entries = std::list<Entry>;

    static std::size_t cost(const Entry& entry);
    void remove(Entries::iterator entry);

    Entries entries_; ///< the one used last in front
    std::unordered_map<std::string, Entries::iterator> cache_;
    std::size_t totalCost_ = 0;
};

} // namespace ombrivane
