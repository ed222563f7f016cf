#include "images/ImageFetches.h"

#include "base/Attempted.h"
#include "platform/Limits.h"
#include "platform/Platform.h"
#include "platform/SerialQueue.h"

#include <algorithm>
#include <deque>
#include <map>
#include <utility>
#include <vector>

namespace ombrivane {

struct ImageFetches::State : std::enable_shared_from_this<State> {
    struct Fetch {
        std::vector<Receiver> receivers;
        std::vector<std::weak_ptr<const void>> forWhom;

        bool isWanted() const {
            return std::any_of(
                forWhom.begin(), forWhom.end(), [](const auto& who) { return !who.expired(); });
        }
    };

    /// Begins those that wait, oldest first, as long as there is room.
    void beginWaiting() {
        while (!waiting.empty() && underWay < limits::pictureTransfers) {
            const std::string url = std::move(waiting.front());
            waiting.pop_front();
            if (!fetches.at(url).isWanted()) {
                fetches.erase(url);
                continue;
            }
            ++underWay;
            begin(url);
        }
    }

    void begin(const std::string& url) {
        const auto deliver =
            [queue = platform().mainQueue, url, weak = weak_from_this()](std::optional<Image> image) {
                queue->async([weak, url, image = std::move(image)] {
                    if (const auto state = weak.lock()) state->end(url, image);
                });
            };
        // A host that ends its network shows no more pictures.
        if (!platform().network) return deliver(std::nullopt);
        platform().network->fetchPicture(
            url, [deliver, codec = platform().images, queue = processing](HttpAnswer answer) {
                if (!answer.data) return deliver(std::nullopt);
                queue->async([deliver, codec, data = std::move(*answer.data)] {
                    std::optional<Image> image;
                    attempted([&] { image = codec->decode(data, logoLimits()); });
                    deliver(std::move(image));
                });
            });
    }

    void end(const std::string& url, const std::optional<Image>& image) {
        --underWay;
        const auto ended = fetches.extract(url);
        beginWaiting();
        for (const auto& receive : ended.mapped().receivers)
            receive(image);
    }

    std::map<std::string, Fetch> fetches;
    std::deque<std::string> waiting;
    std::size_t underWay = 0;
    std::shared_ptr<SerialQueue> processing = std::make_shared<SerialQueue>("image-processing");
};

ImageFetches::ImageFetches() : state_(std::make_shared<State>()) {}

void ImageFetches::fetch(const std::string& url, std::weak_ptr<const void> forWhom, Receiver receive) {
    const auto [entry, isFirst] = state_->fetches.try_emplace(url);
    entry->second.receivers.push_back(std::move(receive));
    entry->second.forWhom.push_back(std::move(forWhom));
    if (!isFirst) return;
    state_->waiting.push_back(url);
    state_->beginWaiting();
}

} // namespace ombrivane
