#pragma once

#include "platform/Image.h"

#include <optional>
#include <string>

namespace ombrivane {

/// Pictures by their address. An entry may go at any time. Main thread only.
class ImageCache {
public:
    ImageCache() = default;
    ImageCache(const ImageCache&) = delete;
    ImageCache& operator=(const ImageCache&) = delete;
    virtual ~ImageCache() = default;

    virtual std::optional<Image> image(const std::string& url) = 0;
    /// Stores a picture, or removes the entry when there is none.
    virtual void setImage(const std::string& url, std::optional<Image> image) = 0;
};

} // namespace ombrivane
