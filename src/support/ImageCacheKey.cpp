#include "support/ImageCacheKey.h"

#include "support/SharedInstance.h"
#include "support/TemporaryImageCache.h"

namespace ombrivane {
namespace {

struct SharedCache {
    std::shared_ptr<ImageCache> cache = std::make_shared<TemporaryImageCache>();
};

} // namespace

std::shared_ptr<ImageCache> ImageCacheKey::defaultValue() { return SharedInstance<SharedCache>::get().cache; }

} // namespace ombrivane
