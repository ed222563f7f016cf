#pragma once

#include "images/ImageCache.h"
#include "images/KeyedImage.h"
#include "keyed/Field.h"

#include <memory>
#include <optional>
#include <string>

namespace ombrivane {

/// Brings the picture at one address. Made by `std::make_shared`. Main thread only.
class ImageLoader : public std::enable_shared_from_this<ImageLoader> {
public:
    /// @param cache where pictures are looked up and kept; may be absent.
    ImageLoader(std::string url, std::shared_ptr<ImageCache> cache);

    Fields fields;
    /// What the view shows; none at first and after a failure.
    Published<std::optional<Image>> image{fields, "image"};
    Published<bool> isLoading{fields, "isLoading", false};

    /// Takes the picture from the cache or fetches it. Does nothing during a load, and for an address that is
    /// not https. A fetch that has begun goes on and fills the cache when its loader is gone; one that still
    /// waits for its turn is dropped then.
    void load();

    const std::string& url() const { return url_; }

private:
    void receive(const std::optional<Image>& fetched);

    std::string url_;
    std::shared_ptr<ImageCache> cache_;
};

} // namespace ombrivane
