#include "items/OmbrivaneSession.h"

#include "platform/Platform.h"
#include "support/Fault.h"

#include <QPointer>

#include <cmath>

namespace ombrivane::view {
namespace {

std::optional<std::string> given(const QString& text) {
    return text.isEmpty() ? std::nullopt : std::optional(text.toStdString());
}

} // namespace

OmbrivaneSession::~OmbrivaneSession() { drop(); }

void OmbrivaneSession::drop() {
    stage_.follow(nullptr);
    view_.reset();
}

/// The signals come on the main thread and only while this lives.
CompletionCallback OmbrivaneSession::callback() {
    if (callback_) return callback_;
    return [self = QPointer<OmbrivaneSession>(this)](
               std::optional<Dictionary> dictionary, std::optional<Error> error) {
        mainQueue().async([self, dictionary = std::move(dictionary), error = std::move(error)] {
            if (!self) return;
            if (error) emit self->failed(QString::fromStdString(error->localizedDescription));
            if (dictionary) emit self->finished(QString::fromStdString(dictionary->dump()));
        });
    };
}

void OmbrivaneSession::open() {
    drop();
    view_ = std::make_unique<OmbrivaneView>(clientId.toStdString(),
                                            clientSecret.toStdString(),
                                            given(userType),
                                            std::isnan(walletBalance) ? std::nullopt
                                                                      : std::optional(walletBalance),
                                            given(phone),
                                            given(environment),
                                            callback());
    const auto close = [self = QPointer<OmbrivaneSession>(this)] {
        if (self) emit self->closed();
    };
    view_->onClose(close, close);
    guarded([this] { view_->show(); });
    stage_.follow(view_->navigator());
}

} // namespace ombrivane::view
