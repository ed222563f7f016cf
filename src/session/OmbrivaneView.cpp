#include "session/OmbrivaneView.h"

#include "session/EntryView.h"
#include "support/Navigator.h"

namespace ombrivane {

struct OmbrivaneView::Parts {
    EntryArguments arguments;
    CompletionCallback callback;
    Dismissal dismissal;
    std::unique_ptr<Navigator> navigator;
};

OmbrivaneView::OmbrivaneView(std::string clientId, std::string clientSecret,
                             std::optional<std::string> userType, std::optional<double> walletBalance,
                             std::optional<std::string> phone, std::optional<std::string> environment,
                             CompletionCallback callback) :
    parts_(std::make_unique<Parts>()) {
    parts_->arguments = {std::move(clientId),
                         std::move(clientSecret),
                         std::move(userType),
                         walletBalance,
                         std::move(phone),
                         std::move(environment)};
    parts_->callback = std::move(callback);
}

OmbrivaneView::~OmbrivaneView() = default;

void OmbrivaneView::onClose(std::function<void()> dismiss, std::function<void()> dismissFrontmost) {
    parts_->dismissal = {std::move(dismiss), std::move(dismissFrontmost)};
}

void OmbrivaneView::show() {
    parts_->navigator.reset();
    parts_->navigator = std::make_unique<Navigator>(
        std::make_shared<EntryView>(parts_->arguments, parts_->callback, parts_->dismissal));
    parts_->navigator->start();
}

Navigator* OmbrivaneView::navigator() const { return parts_->navigator.get(); }

} // namespace ombrivane
