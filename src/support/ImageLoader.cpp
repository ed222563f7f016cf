#include "support/ImageLoader.h"

#include "support/ImageFetches.h"
#include "support/SharedInstance.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace ombrivane {
namespace {

bool hasScheme(std::string_view url, std::string_view scheme) {
    const std::string_view start = url.substr(0, scheme.size());
    return std::equal(start.begin(), start.end(), scheme.begin(), scheme.end(), [](char a, char b) {
        return (a >= 'A' && a <= 'Z' ? a - 'A' + 'a' : a) == b;
    });
}

} // namespace

ImageLoader::ImageLoader(std::string url, std::shared_ptr<ImageCache> cache) :
    url_(std::move(url)), cache_(std::move(cache)) {}

void ImageLoader::load() {
    if (isLoading.get()) return;
    if (const auto cached = cache_ ? cache_->image(url_) : std::nullopt) {
        image = *cached;
        return;
    }
    if (!hasScheme(url_, "https://") && !hasScheme(url_, "http://")) return;
    isLoading = true;
    SharedInstance<ImageFetches>::get().fetch(
        url_,
        weak_from_this(),
        [weak = weak_from_this(), url = url_, cache = cache_](const std::optional<Image>& fetched) {
            if (cache && fetched) cache->setImage(url, fetched);
            if (const auto loader = weak.lock()) loader->receive(fetched);
        });
}

void ImageLoader::receive(const std::optional<Image>& fetched) {
    image = fetched;
    isLoading = false;
}

} // namespace ombrivane
