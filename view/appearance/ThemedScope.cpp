#include "appearance/ThemedScope.h"

#include "appearance/Theme.h"

#include <algorithm>
#include <utility>

namespace ombrivane::view {

ThemedScope::ThemedScope(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemIsFocusScope);
    connect(&DeviceLook::shared(), &DeviceLook::changed, this, &ThemedScope::showLook);
    connect(&deviceInsets_, &DeviceInsets::changed, this, &ThemedScope::showInsets);
}

ThemedScope::~ThemedScope() {
    if (theme_) theme_->retire();
}

Theme* ThemedScope::theme() {
    QQmlEngine* engine = qmlEngine(this);
    if (!theme_ && engine != nullptr) {
        theme_ = new Theme(*engine); // owned by the engine
        theme_->setAppearance(appearance_);
        theme_->setLook(look());
        theme_->setInsets(insets());
    }
    return theme_;
}

void ThemedScope::setAppearance(const Appearance& appearance) {
    appearance_ = appearance;
    if (theme_) theme_->setAppearance(appearance_);
}

void ThemedScope::setAppearanceTable(AppearanceTable* table) {
    if (table == table_) return;
    if (table_) table_->disconnect(this);
    table_ = table;
    const auto show = [this] { setAppearance(table_ ? table_->value() : Appearance()); };
    if (table_) connect(table_, &AppearanceTable::changed, this, show);
    show();
    emit appearanceChanged();
}

Look ThemedScope::look() const {
    const Look& device = DeviceLook::shared().look();
    return {.dark = dark_.value_or(device.dark),
            .textScale = textScale_.value_or(device.textScale),
            .reducedMotion = reducedMotion_.value_or(device.reducedMotion),
            .boldText = boldText_.value_or(device.boldText)};
}

void ThemedScope::showLook() {
    if (theme_) theme_->setLook(look());
    emit lookChanged();
}

Insets ThemedScope::insets() const {
    const Insets& device = deviceInsets_.insets();
    const auto said = [](const std::optional<double>& points, double otherwise) {
        return std::max(0.0, points.value_or(otherwise));
    };
    return {.left = said(safeLeft_, device.left),
            .top = said(safeTop_, device.top),
            .right = said(safeRight_, device.right),
            .bottom = said(safeBottom_, device.bottom),
            .keyboard = said(keyboardHeight_, device.keyboard)};
}

void ThemedScope::setInset(std::optional<double>& inset, std::optional<double> points) {
    if (std::exchange(inset, points) != points) showInsets();
}

void ThemedScope::showInsets() {
    if (theme_) theme_->setInsets(insets());
    emit insetsChanged();
}

void ThemedScope::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickItem::geometryChange(now, before);
    deviceInsets_.read();
}

void ThemedScope::setDark(std::optional<bool> dark) {
    if (std::exchange(dark_, dark) != dark) showLook();
}

void ThemedScope::setTextScale(std::optional<double> textScale) {
    if (std::exchange(textScale_, textScale) != textScale) showLook();
}

void ThemedScope::setMotionReduced(std::optional<bool> reduced) {
    if (std::exchange(reducedMotion_, reduced) != reduced) showLook();
}

void ThemedScope::setTextBold(std::optional<bool> bold) {
    if (std::exchange(boldText_, bold) != bold) showLook();
}

} // namespace ombrivane::view
