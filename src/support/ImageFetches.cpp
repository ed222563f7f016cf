#include "support/ImageFetches.h"

#include "platform/Platform.h"
#include "support/Attempted.h"

#include <utility>

namespace ombrivane {

void ImageFetches::fetch(const std::string& url, Receiver receive) {
    const auto [entry, isFirst] = waiting_->try_emplace(url);
    entry->second.push_back(std::move(receive));
    if (isFirst) start(url);
}

void ImageFetches::start(const std::string& url) {
    const auto deliver =
        [queue = platform().mainQueue, url, weak = std::weak_ptr(waiting_)](std::optional<Image> image) {
            queue->async([weak, url, image = std::move(image)] {
                const auto waiting = weak.lock();
                if (!waiting) return;
                const auto ended = waiting->extract(url);
                for (const auto& receive : ended.mapped())
                    receive(image);
            });
        };
    platform().network->fetchPicture(
        url, [deliver, codec = platform().images, processing = processing_](HttpAnswer answer) {
            if (!answer.data) {
                deliver(std::nullopt);
                return;
            }
            processing->async([deliver, codec, data = std::move(*answer.data)] {
                std::optional<Image> image;
                attempted([&] { image = codec->decode(data, logoLimits()); });
                deliver(std::move(image));
            });
        });
}

} // namespace ombrivane
