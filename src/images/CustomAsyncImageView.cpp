#include "images/CustomAsyncImageView.h"

#include <utility>

namespace ombrivane {

CustomAsyncImageView::CustomAsyncImageView(std::string url, std::string placeholder_,
                                           std::shared_ptr<ImageCache> cache) :
    Screen("CustomAsyncImageView"),
    loader_(std::make_shared<ImageLoader>(std::move(url), std::move(cache))),
    placeholderText_(std::move(placeholder_)) {}

} // namespace ombrivane
