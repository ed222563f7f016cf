#pragma once

#include "images/ImageCacheKey.h"
#include "images/ImageLoader.h"
#include "keyed/Derived.h"
#include "keyed/Screen.h"

#include <memory>
#include <string>

namespace ombrivane {

/// A picture by its address, with a text in its place until it has arrived. Loads each time it appears.
class CustomAsyncImageView final : public Screen {
public:
    /// @param placeholder may be empty, for a place that stays blank.
    CustomAsyncImageView(std::string url, std::string placeholder,
                         std::shared_ptr<ImageCache> cache = ImageCacheKey::defaultValue());

    void appear() override { loader_->load(); }

private:
    std::shared_ptr<ImageLoader> loader_;
    std::string placeholderText_;

public:
    Model loader{fields, "loader", loader_->fields};
    /// Empty once there is a picture.
    Derived<std::string> placeholder{
        fields, "placeholder", [this] { return loader_->image.get() ? std::string() : placeholderText_; }};
    Derived<std::optional<Image>> image{fields, "image", [this] { return loader_->image.get(); }};
};

} // namespace ombrivane
