#include "WalletAccount.h"

#include "WalletWords.h"

namespace ombrivane::demo {

Json withoutToken(Json dictionary) {
    if (dictionary.is_object() && dictionary.contains("bearerToken")) dictionary["bearerToken"] = "(hidden)";
    return dictionary;
}

void WalletAccount::setLocale(const QLocale& locale) {
    locale_ = locale;
    receipts_.setLocale(locale);
    emit localeChanged();
    emit balanceChanged();
}

void WalletAccount::keep(const QString& reservation) {
    Json dictionary = withoutToken(Json::parse(reservation.toStdString(), nullptr, false));
    if (!dictionary.is_object()) return;
    const auto summary = dictionary.value("bookingSummary", Json::object());
    const QString number = QString::fromStdString(summary.value("PNR", std::string()));
    receipts_.add({.title = number, .detail = {}, .dictionary = std::move(dictionary)});
    emit kept(number);
}

void WalletAccount::complain(const QString& title, const QString& detail) {
    receipts_.add({.wentWrong = true, .title = title, .detail = detail, .dictionary = {}});
}

void WalletAccount::hear(const QVariantMap& event) {
    const QString name = event.value("event").toString();
    const WalletWords words = WalletWords::of(language());
    if (name == "reservationUnknown") {
        complain(words.unknown, words.unknownAdvice);
    } else if (name == "reservationAnswered" && !event.value("error").toString().isEmpty()) {
        complain(words.refused, words.refusedAdvice);
    }
}

void WalletAccount::end(const QString& error) { complain(WalletWords::of(language()).ended, error); }

bool WalletAccount::pay(int row) {
    const auto due = receipts_.due(row);
    if (!due || *due > balance_) return false;
    balance_ -= *due;
    receipts_.markPaid(row);
    emit balanceChanged();
    return true;
}

} // namespace ombrivane::demo
