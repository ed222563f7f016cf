#include "session/EntryView.h"

#include "base/Fault.h"
#include "base/SharedInstance.h"
#include "events/HostEvents.h"
#include "platform/Platform.h"
#include "search/MainView.h"
#include "search/MainViewModel.h"
#include "services/CustomError.h"
#include "services/Endpoints.h"
#include "services/ServiceHosts.h"
#include "session/Fonts.h"
#include "state/AppState.h"

#include <utility>

namespace ombrivane {
namespace {

std::function<void()> closing(Dismissal dismissal) {
    return [dismissal = std::move(dismissal)] {
        const bool frontmost = platform().system.isBelow("iOS", 15);
        const auto close = frontmost ? dismissal.dismissFrontmost : dismissal.dismiss;
        if (close) return close();
        if (frontmost) fatalFault("the application has no window to close the component in");
    };
}

struct HostsWarning {
    bool given = false;
};

/// A wallet that forgot to name the service would look for a fault of its network.
void warnOfHosts() {
    if (!ServiceHosts::areOfNobody() || std::exchange(SharedInstance<HostsWarning>::get().given, true))
        return;
    platform().diagnostics->print(
        "ServiceHosts: no booking service was named, neither by ServiceHosts::use nor when the "
        "component was built; asking " +
        ServiceHosts::current().of(AppState::shared().environment.get()));
}

/// A wallet that asks for another environment later would take what it sees for that of the other.
void warnOfEnvironment() {
    if (!Endpoints::areFixed()) return;
    const std::string& fixed = Endpoints::shared().baseURL;
    if (ServiceHosts::current().of(AppState::shared().environment.get()) == fixed) return;
    platform().diagnostics->print(
        "ServiceHosts: the first request of the process has fixed the host of the service; asking " + fixed);
}

/// Whose the navigation flags of the process are.
struct ShownLast {
    const EntryView* view = nullptr;
};

} // namespace

EntryView::EntryView(EntryArguments arguments, CompletionCallback callback, Dismissal dismissal) :
    Screen("OmbrivaneView"),
    arguments_(std::move(arguments)),
    boundary_(std::make_shared<HostBoundary>(std::move(callback), closing(std::move(dismissal)))),
    search(std::make_shared<MainView>(boundary_->internalCallback())) {}

bool EntryView::drop() {
    dropped_ = true;
    boundary_->drop();
    auto& shown = SharedInstance<ShownLast>::get().view;
    return shown == this && std::exchange(shown, nullptr) != nullptr;
}

void EntryView::appear() {
    if (std::exchange(bootstrapped_, true)) return;
    SharedInstance<ShownLast>::get().view = this;
    const std::string opening = HostEvents::shared().beginOpening();
    boundary_->setOpening(opening);
    HostEvents::shared().tell(Event{.kind = EventKind::opened, .opening = opening});
    if (platform().system.isBelow("iOS", 14)) {
        return boundary_->receive(std::nullopt, makeError(CustomError::requiredIOSVersion));
    }
    // Before any endpoint is read: the first one fixes the host for the life of the process.
    AppState::shared().environment = arguments_.environment.value_or("test");
    warnOfHosts();
    warnOfEnvironment();

    const std::weak_ptr<Screen> weak = weak_from_this();
    const auto boundary = boundary_;
    AuthenticationProvider().authenticate(
        arguments_.clientId,
        arguments_.clientSecret,
        arguments_.userType,
        [weak, boundary](std::optional<Authentication> authentication, std::optional<Error> error) {
            if (error) return boundary->receive(std::nullopt, std::move(error));
            mainQueue().async([weak, authentication = std::move(authentication)]() mutable {
                const auto self = weak.lock();
                if (self) static_cast<EntryView&>(*self).authenticated(std::move(authentication));
            });
        });
}

void EntryView::clearStack() {
    AppState::shared().resetNavigation();
    MainViewModel::shared().closeSheets();
}

void EntryView::authenticated(std::optional<Authentication> authentication) {
    if (dropped_) return;
    AppState::shared().update(authentication ? authentication->accessToken : "",
                              arguments_.userType.value_or("customer"),
                              arguments_.walletBalance,
                              arguments_.phone);
    registerFonts();
    clearStack(); // a view that still lives may have left its results there
    if (kept_) kept_->fillForm();
    view = search;
    if (kept_) std::exchange(kept_, std::nullopt)->show(*search);
}

} // namespace ombrivane
