#include "fakes/World.h"

#include "base/SharedInstance.h"
#include "platform/JpegPngCodec.h"

#include <utility>

namespace ombrivane::fakes {

World::World() {
    dropSharedInstances();
    before_ = setFaultHandler([this](const std::string& text) { faults_.push_back(text); });
    install();
}

World::~World() {
    while (network->outstanding() > 0)
        network->fail({"Fake", 1, "The network is gone."});
    queue->drain();
    dropSharedInstances();
    setFaultHandler(before_);
    for (const auto& fault : faults_)
        ADD_FAILURE() << "unexpected fault: " << fault;
    Platform::install({});
}

std::vector<std::string> World::takeFaults() { return std::exchange(faults_, {}); }

void World::install(SystemVersion system) {
    Platform ports;
    ports.mainQueue = queue;
    ports.network = network;
    ports.reachability = reachability;
    ports.clock = clock;
    ports.bundles = bundles;
    ports.fonts = fonts;
    ports.localization = localization;
    ports.images = std::make_shared<JpegPngCodec>();
    ports.photos = photos;
    ports.urls = urls;
    ports.sharing = sharing;
    ports.diagnostics = diagnostics;
    ports.system = std::move(system);
    Platform::install(std::move(ports));
}

void World::answer(const std::string& data) {
    network->answer(data);
    queue->drain();
}

void World::pass(std::chrono::milliseconds duration) {
    clock->time += duration;
    queue->advance(duration);
}

} // namespace ombrivane::fakes
