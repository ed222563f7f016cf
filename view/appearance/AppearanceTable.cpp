#include "appearance/AppearanceTable.h"

#include <limits>

namespace ombrivane::view {

double AppearanceTable::cornerRadius() const {
    return value_.cornerRadius.value_or(std::numeric_limits<double>::quiet_NaN());
}

template <class Value> void AppearanceTable::set(Value Appearance::*member, const Value& value) {
    if (value_.*member == value) return;
    value_.*member = value;
    if (complete_) emit changed();
}

void AppearanceTable::setLight(const Colours& colours) { set(&Appearance::light, colours); }
void AppearanceTable::setDark(const Colours& colours) { set(&Appearance::dark, colours); }
void AppearanceTable::setFontFamily(const QString& family) { set(&Appearance::fontFamily, family); }
void AppearanceTable::setFontFaces(const QList<QUrl>& faces) { set(&Appearance::fontFaces, faces); }
void AppearanceTable::setCornerRadius(double points) { set(&Appearance::cornerRadius, {points}); }
void AppearanceTable::resetCornerRadius() { set(&Appearance::cornerRadius, {}); }
void AppearanceTable::setLogo(const QUrl& picture) { set(&Appearance::logo, picture); }
void AppearanceTable::setPoweredBy(const QString& text) { set(&Appearance::poweredBy, {text}); }
void AppearanceTable::resetPoweredBy() { set(&Appearance::poweredBy, {}); }

void AppearanceTable::componentComplete() {
    complete_ = true;
    emit changed();
}

} // namespace ombrivane::view
