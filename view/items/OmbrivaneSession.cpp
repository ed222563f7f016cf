#include "items/OmbrivaneSession.h"

#include "base/ErrorKind.h"
#include "base/Fault.h"
#include "platform/Platform.h"
#include "words/LanguageChoice.h"

#include <QPointer>

#include <cmath>
#include <limits>
#include <utility>

namespace ombrivane::view {
namespace {

std::optional<std::string> given(const std::optional<QString>& text) {
    return text ? std::optional(text->toStdString()) : std::nullopt;
}

} // namespace

OmbrivaneSession::~OmbrivaneSession() { drop(); }

double OmbrivaneSession::givenWalletBalance() const {
    return walletBalance.value_or(std::numeric_limits<double>::quiet_NaN());
}

void OmbrivaneSession::setWalletBalance(double given) {
    walletBalance = std::isnan(given) ? std::nullopt : std::optional(given);
}

void OmbrivaneSession::setLanguage(const QString& given) {
    language = given;
    speakAgain();
}

void OmbrivaneSession::setRegion(const QString& given) {
    region = given;
    speakAgain();
}

void OmbrivaneSession::setTexts(const QVariantMap& given) {
    texts = given;
    speakAgain();
}

void OmbrivaneSession::resetLanguage() {
    language.reset();
    speakAgain();
}

void OmbrivaneSession::resetRegion() {
    region.reset();
    speakAgain();
}

void OmbrivaneSession::speak() const {
    LanguageChoice choice{given(language), given(region), {}};
    for (auto text = texts.begin(); text != texts.end(); ++text)
        choice.texts.emplace(text.key().toStdString(), text->toString().toStdString());
    chooseLanguage(std::move(choice));
}

void OmbrivaneSession::speakAgain() const {
    if (view_) speak();
}

void OmbrivaneSession::giveContacts(const SupportContacts& contacts) {
    supportContacts = contacts;
    if (view_) SupportContacts::use(contacts);
}

void OmbrivaneSession::drop() {
    opened_.reset();
    stage_.follow(nullptr);
    if (view_ && records) recorded_ = view_->recording();
    if (view_ && kept_.empty()) kept_ = view_->unrestoredState();
    view_.reset();
}

QString OmbrivaneSession::saveState() const {
    return QString::fromStdString(view_ ? view_->saveState() : kept_);
}

bool OmbrivaneSession::restoreState(const QString& state) {
    const bool isGood = OmbrivaneView::isState(state.toStdString());
    if (isGood) kept_ = state.toStdString();
    return isGood;
}

QString OmbrivaneSession::recording() const {
    return QString::fromStdString(view_ && records ? view_->recording() : recorded_);
}

void OmbrivaneSession::forget() {
    drop();
    kept_.clear();
    recorded_.clear();
    OmbrivaneView::forget();
}

/// The signals come on the main thread and only while this lives; of a view that was dropped meanwhile comes
/// the hand-over alone.
CompletionCallback OmbrivaneSession::callback() {
    if (callback_) return callback_;
    return [self = QPointer<OmbrivaneSession>(this), opened = std::weak_ptr(opened_)](
               std::optional<Dictionary> dictionary, std::optional<Error> error) {
        mainQueue().async([self, opened, dictionary = std::move(dictionary), error = std::move(error)] {
            const bool handsOver = dictionary && dictionary->at("exit").get<bool>();
            if (!self || (opened.expired() && !handsOver)) return;
            if (error) {
                return emit self->failed(QString::fromStdString(error->localizedDescription),
                                         QString::fromStdString(error->domain),
                                         error->code,
                                         static_cast<int>(kindOf(*error)));
            }
            if (dictionary) emit self->finished(QString::fromStdString(dictionary->dump()));
        });
    };
}

void OmbrivaneSession::open() {
    drop();
    speak();
    if (supportContacts) SupportContacts::use(*supportContacts);
    opened_ = std::make_shared<Opened>();
    view_ = std::make_unique<OmbrivaneView>(clientId.toStdString(),
                                            clientSecret.toStdString(),
                                            given(userType),
                                            walletBalance,
                                            given(phone),
                                            given(environment),
                                            callback());
    stage_.useEngine(qmlEngine(this));
    if (records) view_->record();
    view_->restoreState(std::exchange(kept_, std::string()));
    const QPointer<OmbrivaneSession> self(this);
    view_->onClose([self] {
        if (self) emit self->closed();
    });
    // The host may be called before `show` returns, and may drop, open again or destroy this when it is.
    const OmbrivaneView* shown = view_.get();
    guarded([this] { view_->show(); });
    if (self && view_.get() == shown && shown != nullptr) stage_.follow(shown->navigator());
}

} // namespace ombrivane::view
