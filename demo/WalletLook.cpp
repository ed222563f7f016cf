#include "WalletLook.h"

#include <QFont>
#include <QGuiApplication>

#include <algorithm>

namespace ombrivane::demo {
namespace {

constexpr char16_t lastLatin = 0x24f;
constexpr const char* ownFamily = "Fira Sans";

} // namespace

const Brand& WalletLook::shown() const {
    return brand_ >= 0 && brand_ < brands().size() ? brands().at(brand_) : neutralBrand();
}

const view::Colours& WalletLook::colours() const {
    return dark_ ? shown().appearance.dark : shown().appearance.light;
}

QString WalletLook::family() const { return familyOf(words().balance); }

QString WalletLook::familyOf(const QString& text) const {
    const bool isLatin =
        std::all_of(text.begin(), text.end(), [](QChar letter) { return letter.unicode() <= lastLatin; });
    return isLatin ? QString(ownFamily) : QGuiApplication::font().family();
}

} // namespace ombrivane::demo
