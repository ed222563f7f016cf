#include "images/ImageLoader.h"

#include "base/Https.h"
#include "base/SharedInstance.h"
#include "images/ImageFetches.h"

#include <utility>

namespace ombrivane {
ImageLoader::ImageLoader(std::string url, std::shared_ptr<ImageCache> cache) :
    url_(std::move(url)), cache_(std::move(cache)) {}

void ImageLoader::load() {
    if (isLoading.get()) return;
    if (const auto cached = cache_ ? cache_->image(url_) : std::nullopt) {
        image = *cached;
        return;
    }
    if (!isHttps(url_)) return;
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
