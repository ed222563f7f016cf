#include "Conditions.h"

#include "Brands.h"

namespace ombrivane::demo {
namespace {

constexpr const char* offlineName = "offline";

struct Trouble {
    const char* name; ///< a scenario of the sandbox
    const char* label;
    const char* felt; ///< when it is on
};

constexpr Trouble allTroubles[] = {
    {offlineName, "Offline", "At the next step: no request leaves the device."},
    {"slow-line", "Slow line", "From the next request on: each answer takes two seconds longer."},
    {"sold-out", "Sold out", "At the next price that is asked for: the offer is gone."},
    {"dearer", "Dearer fare", "At the next price that is asked for: it is 7 % more than the offer said."},
    {"expires-soon", "Expires soon", "From the next price on: the service holds it for one minute."},
    {"documents-lost", "Documents lost", "At the next upload of documents: its answer is lost on the way."},
};

const Trouble* troubleOf(const QString& name) {
    for (const Trouble& trouble : allTroubles)
        if (name == QLatin1String(trouble.name)) return &trouble;
    return nullptr;
}

} // namespace

QStringList Conditions::brandNames() const {
    QStringList names;
    for (const Brand& brand : demo::brands())
        names.append(brand.name);
    return names;
}

QStringList Conditions::troubles() const {
    QStringList names;
    for (const Trouble& trouble : allTroubles)
        names.append(trouble.name);
    return names;
}

QString Conditions::label(const QString& name) const {
    const Trouble* trouble = troubleOf(name);
    return trouble != nullptr ? tr(trouble->label) : name;
}

bool Conditions::isPossible(const QString& trouble) const {
    return troubleOf(trouble) != nullptr && (ownService_ || trouble == QLatin1String(offlineName));
}

QString Conditions::reason() const {
    return ownService_
               ? QString()
               : tr("Another booking service is in use (--test-host): what it does is not decided here.");
}

void Conditions::say(const QString& line) {
    said_ = line;
    emit changed();
}

void Conditions::setLook(const QString& look) {
    look_ = look;
    say(look == "device" ? tr("At once: as the device says.")
                         : tr("At once: everything is drawn %1.").arg(look));
}

void Conditions::setTextScale(double scale) {
    textScale_ = scale;
    say(scale > 0 ? tr("At once: letters have %1 % of their size.").arg(qRound(scale * 100))
                  : tr("At once: letters are as large as the device says."));
}

void Conditions::setLanguage(const QString& language) {
    language_ = language;
    say(tr("At once, but for what the booking service has said: that stays as it came."));
}

void Conditions::setBrand(int brand) {
    brand_ = brand;
    say(tr("At once: colours and corners of another wallet."));
}

void Conditions::turn(const QString& name, bool on) {
    const Trouble* trouble = troubleOf(name);
    if (!isPossible(name) || on_.contains(name) == on) return;
    if (on) {
        on_.append(name);
    } else {
        on_.removeAll(name);
    }
    emit turned();
    say(on ? tr(trouble->felt) : tr("%1 is over, from the next step on.").arg(tr(trouble->label)));
}

void Conditions::begin(const QStringList& on) {
    for (const QString& name : on)
        if (troubleOf(name) != nullptr) on_.append(name);
    said_.clear();
    emit changed();
}

bool Conditions::isOffline() const { return on_.contains(QLatin1String(offlineName)); }

QStringList Conditions::scenarios() const { return ownService_ ? on_ : QStringList(); }

} // namespace ombrivane::demo
