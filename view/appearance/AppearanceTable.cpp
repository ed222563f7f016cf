#include "appearance/AppearanceTable.h"

#include <limits>

namespace ombrivane::view {

double AppearanceTable::cornerRadius() const {
    return value_.cornerRadius.value_or(std::numeric_limits<double>::quiet_NaN());
}

void AppearanceTable::setLight(const Colours& colours) {
    Appearance next = value_;
    next.light = colours;
    become(next);
}

void AppearanceTable::setDark(const Colours& colours) {
    Appearance next = value_;
    next.dark = colours;
    become(next);
}

void AppearanceTable::setFontFamily(const QString& family) {
    Appearance next = value_;
    next.fontFamily = family;
    become(next);
}

void AppearanceTable::setFontFaces(const QList<QUrl>& faces) {
    Appearance next = value_;
    next.fontFaces = faces;
    become(next);
}

void AppearanceTable::setCornerRadius(double points) {
    Appearance next = value_;
    next.cornerRadius = points;
    become(next);
}

void AppearanceTable::resetCornerRadius() {
    Appearance next = value_;
    next.cornerRadius.reset();
    become(next);
}

void AppearanceTable::setLogo(const QUrl& picture) {
    Appearance next = value_;
    next.logo = picture;
    become(next);
}

void AppearanceTable::setPoweredBy(const QString& text) {
    Appearance next = value_;
    next.poweredBy = text;
    become(next);
}

void AppearanceTable::resetPoweredBy() {
    Appearance next = value_;
    next.poweredBy.reset();
    become(next);
}

void AppearanceTable::componentComplete() {
    complete_ = true;
    emit changed();
}

void AppearanceTable::become(const Appearance& value) {
    if (value == value_) return;
    value_ = value;
    if (complete_) emit changed();
}

} // namespace ombrivane::view
