#include "Walk.h"

#include "base/SharedInstance.h"
#include "device/QtMainQueue.h"
#include "keyed/Navigator.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include <fstream>

namespace ombrivane::view {

WalkPorts::WalkPorts() : device_(platform()) {
    dropSharedInstances(); // each customer starts with an empty form
    Platform ports = device_;
    clock->startAt(startOfTests());
    ports.clock = clock;
    ports.photos = photos;
    ports.reachability = reachability;
    ports.urls = std::make_shared<journey::ReportedUrls>(log);
    ports.sharing = std::make_shared<journey::ReportedSharing>(log);
    Platform::install(std::move(ports));
}

WalkPorts::~WalkPorts() {
    dropSharedInstances(); // and leaves an empty one
    Platform::install(std::move(device_));
}

void walk(WalkPorts& ports, Window& window, const std::string& file,
          const std::function<void(const std::string& name)>& look, const Commands& commands) {
    std::ifstream lines(file);
    ASSERT_TRUE(lines) << file;
    walk(ports, window, lines, look, commands);
}

void walk(WalkPorts& ports, Window& window, std::istream& lines,
          const std::function<void(const std::string& name)>& look, const Commands& commands) {
    auto& queue = dynamic_cast<QtMainQueue&>(*platform().mainQueue);
    bool faulted = false;
    journey::Script script({
        .runUntil =
            [&](const auto& done, auto limit) {
                QElapsedTimer time;
                time.start();
                bool held = false;
                window.waitFor([&] { return (held = done()) || time.elapsed() >= limit.count(); });
                return held;
            },
        .advance = [&](auto duration) { queue.advance(duration); },
        .open = [&] { window.open(); },
        .destroy = [&] { window.session().drop(); },
        .navigator = [&] { return window.hasSession() ? window.session().navigator() : nullptr; },
        .faulted = [&] { return faulted; },
        .log = *ports.log,
        .clock = *ports.clock,
        .reachability = *ports.reachability,
        .photos = *ports.photos,
    });
    script.addCommand("look", look);
    for (const auto& [name, command] : commands)
        script.addCommand(name, command);
    script.addCommand("faults", [](const std::string& fault) {
        service().setFaults(fault.empty() ? std::vector<std::string>() : std::vector{fault});
    });
    window.open();
    EXPECT_EQ(script.play(lines), journey::Ending::done);
}

} // namespace ombrivane::view
