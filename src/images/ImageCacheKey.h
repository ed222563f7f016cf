#pragma once

#include "images/ImageCache.h"

#include <memory>

namespace ombrivane {

/// The cache that views use unless they are given another.
struct ImageCacheKey {
    /// One `TemporaryImageCache` for the life of the process.
    static std::shared_ptr<ImageCache> defaultValue();
};

} // namespace ombrivane
