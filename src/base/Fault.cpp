#include "base/Fault.h"

#include "base/Turn.h"

#include <cstdio>
#include <cstdlib>
#include <mutex>

namespace ombrivane {
namespace {

struct HandlerSlot {
    std::mutex mutex;
    FaultHandler handler;
};

/// Never destroyed: threads read it until the process has gone.
HandlerSlot& slot() {
    static auto& instance = *new HandlerSlot;
    return instance;
}

std::string placed(const std::string& what, const std::string& file, int line) {
    return file.substr(file.find_last_of('/') + 1) + ":" + std::to_string(line) + ": " + what;
}

} // namespace

FaultHandler setFaultHandler(FaultHandler handler) {
    const std::lock_guard lock(slot().mutex);
    std::swap(slot().handler, handler);
    return handler;
}

void fatalFault(const std::string& what, const char* file, int line) {
    const std::string text = placed(what, file, line);
    FaultHandler handler;
    {
        const std::lock_guard lock(slot().mutex);
        handler = slot().handler;
    }
    if (!handler) {
        std::fprintf(stderr, "Ombrivane fault at %s\n", text.c_str());
        std::abort();
    }
    handler(text);
    throw Fault(text);
}

bool guarded(const std::function<void()>& step) {
    try {
        const Turn turn;
        step();
        return true;
    } catch (const Fault&) {
        return false;
    }
}

} // namespace ombrivane
