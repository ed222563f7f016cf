#include "images/TemporaryImageCache.h"

#include <utility>

namespace ombrivane {

std::optional<Image> TemporaryImageCache::image(const std::string& url) {
    const auto found = cache_.find(url);
    if (found == cache_.end()) return std::nullopt;
    entries_.splice(entries_.begin(), entries_, found->second);
    return entries_.front().image;
}

void TemporaryImageCache::setImage(const std::string& url, std::optional<Image> image) {
    if (const auto found = cache_.find(url); found != cache_.end()) remove(found->second);
    if (!image) return;
    entries_.push_front({url, std::move(*image)});
    cache_.emplace(url, entries_.begin());
    totalCost_ += cost(entries_.front());
    while (entries_.size() > countLimit || totalCost_ > totalCostLimit)
        remove(std::prev(entries_.end()));
}

std::size_t TemporaryImageCache::cost(const Entry& entry) {
    return entry.image.points ? entry.image.points->size() : 0;
}

void TemporaryImageCache::remove(Entries::iterator entry) {
    totalCost_ -= cost(*entry);
    cache_.erase(entry->url);
    entries_.erase(entry);
}

} // namespace ombrivane
