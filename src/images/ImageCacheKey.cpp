#include "images/ImageCacheKey.h"

#include "base/SharedInstance.h"
#include "images/TemporaryImageCache.h"

namespace ombrivane {
namespace {

struct SharedCache {
    std::shared_ptr<ImageCache> cache = std::make_shared<TemporaryImageCache>();
};

} // namespace

std::shared_ptr<ImageCache> ImageCacheKey::defaultValue() { return SharedInstance<SharedCache>::get().cache; }

} // namespace ombrivane
