#include "appearance/Theme.h"

#include "appearance/FontFaces.h"
#include "appearance/ReadableColours.h"
#include "appearance/ThemedScope.h"
#include "platform/Platform.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QQmlContext>

#include <algorithm>

namespace ombrivane::view {
namespace {

/// That of everything outside of a view.
Theme* themeOfEngine(QQmlEngine& engine) {
    const QString name = QStringLiteral("com.framework.Ombrivane.theme");
    auto* theme = engine.findChild<Theme*>(name, Qt::FindDirectChildrenOnly);
    if (theme == nullptr) {
        theme = new Theme(engine); // owned by the engine
        theme->setObjectName(name);
        const auto follow = [theme] { theme->setLook(DeviceLook::shared().look()); };
        follow();
        QObject::connect(&DeviceLook::shared(), &DeviceLook::changed, theme, follow);
    }
    return theme;
}

/// The component's own family, once its faces are there.
QString ownFamily() {
    const QString name = QStringLiteral("Fira Sans");
    return QFontDatabase::hasFamily(name) ? name : QString();
}

} // namespace

Theme::Theme(QQmlEngine& engine) : QObject(&engine) {
    connect(&words_, &WordsAdapter::fontFamilyChanged, this, &Theme::chooseLettering);
    // Faces come when the component has started, to pages that were measured without them.
    connect(
        qGuiApp, &QGuiApplication::fontDatabaseChanged, this, &Theme::chooseLettering, Qt::QueuedConnection);
}

/// Objects hang in contexts from their creation on, long before they have a place in a window; delegates,
/// pages of loaders and popups all have contexts that end in that of the view.
Theme* Theme::qmlAttachedProperties(QObject* object) {
    if (auto* scope = qobject_cast<ThemedScope*>(object)) return scope->theme();
    QQmlEngine* engine = qmlEngine(object);
    if (engine == nullptr) return nullptr;
    for (const QQmlContext* context = qmlContext(object); context != nullptr;
         context = context->parentContext()) {
        if (auto* scope = qobject_cast<ThemedScope*>(context->contextObject())) return scope->theme();
    }
    return themeOfEngine(*engine);
}

void Theme::setAppearance(const Appearance& appearance) {
    if (appearance == appearance_) return;
    appearance_ = appearance;
    complaints_.clear();
    for (const bool dark : {false, true}) {
        auto [shown, complaints] = readable(dark ? appearance.dark : appearance.light, dark);
        colours_[dark ? 1 : 0] = shown;
        complaints_ += complaints;
    }
    if (!complaints_.isEmpty() && !std::exchange(complains_, true))
        QMetaObject::invokeMethod(this, &Theme::complain, Qt::QueuedConnection);
    chooseLettering();
    emit changed();
}

void Theme::setLook(const Look& look) {
    if (std::exchange(look_, look) != look) emit changed();
}

void Theme::setInsets(const Insets& insets) {
    if (std::exchange(insets_, insets) != insets) emit insetsChanged();
}

/// Colours that a wallet sets one after the other are judged when it is through with them.
void Theme::complain() {
    complains_ = false;
    for (const auto& line : complaints_) {
        if (told_.contains(line)) continue;
        told_.insert(line);
        platform().diagnostics->print(line.toStdString());
    }
}

Theme::Lettering Theme::chosenLettering() const {
    const QString ofFaces = addFontFaces(appearance_.fontFaces);
    const QString own = appearance_.fontFamily.isEmpty() ? ofFaces : appearance_.fontFamily;
    const QString ofDevice = WordsAdapter::fontFamily();
    QString family = own.isEmpty() ? ownFamily() : own;
    if (!ofDevice.isEmpty() && !WordsAdapter::hasLetters(own)) family = ofDevice;
    return {family, ofDevice.isEmpty() ? 1.0 : 8.0};
}

const Theme::Lettering& Theme::lettering() {
    if (!lettering_) lettering_ = chosenLettering();
    return *lettering_;
}

void Theme::chooseLettering() {
    if (!lettering_) return;
    auto chosen = chosenLettering();
    if (chosen == *lettering_) return;
    lettering_ = std::move(chosen);
    emit fontFamilyChanged();
}

int Theme::textWeight() const { return look_.boldText ? QFont::DemiBold : QFont::Normal; }

int Theme::readingWeight() const { return look_.boldText ? textWeight() : QFont::Light; }

double Theme::cardRadius() const { return std::max(0.0, appearance_.cornerRadius.value_or(14)); }

double Theme::fieldRadius() const { return std::max(0.0, cardRadius() - 2); }

/// What the view has made goes with it, or with a deferred deletion that is posted meanwhile. The deletion
/// that a queued call posts stands behind all of these.
void Theme::retire() { QMetaObject::invokeMethod(this, &QObject::deleteLater, Qt::QueuedConnection); }

} // namespace ombrivane::view
