#include "session/Fonts.h"

#include "base/Fault.h"
#include "base/SharedInstance.h"
#include "platform/Platform.h"

namespace ombrivane {
namespace {

constexpr const char* bundleIdentifier = "com.framework.Ombrivane";

struct FontsState {
    bool registered = false;
};

} // namespace

void registerFonts() {
    auto& state = SharedInstance<FontsState>::get();
    if (state.registered) return;
    if (!platform().bundles->contains(bundleIdentifier)) {
        fatalFault(std::string("there is no bundle ") + bundleIdentifier);
    }
    const auto urls = platform().bundles->urls(bundleIdentifier, "ttf");
    if (!urls) return;
    for (const auto& url : *urls)
        platform().fonts->registerFont(url);
    state.registered = true;
}

} // namespace ombrivane
