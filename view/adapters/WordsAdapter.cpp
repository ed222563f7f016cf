#include "adapters/WordsAdapter.h"

#include "words/Words.h"

#include <QFontDatabase>
#include <QLocale>

namespace ombrivane::view {
namespace {

/// The scripts of languages that the component's own family has no letters of.
QFontDatabase::WritingSystem foreignScript(const QString& language) {
    switch (QLocale(language).script()) {
    case QLocale::ArabicScript:
        return QFontDatabase::Arabic;
    case QLocale::BengaliScript:
        return QFontDatabase::Bengali;
    case QLocale::DevanagariScript:
        return QFontDatabase::Devanagari;
    case QLocale::HebrewScript:
        return QFontDatabase::Hebrew;
    case QLocale::ThaiScript:
        return QFontDatabase::Thai;
    default:
        return QFontDatabase::Any;
    }
}

} // namespace

WordsAdapter::WordsAdapter() :
    fontFamilyChanged_(ombrivane::Words::shared().observe([this] { tellFontFamily(); })),
    changed_(ombrivane::Words::shared().observe(settled([this] { emit changed(); }))) {}

#define OMBRIVANE_WORDING(key, english)                                                                      \
    QString WordsAdapter::key() { return QString::fromStdString(said(Text::key)); }
#include "words/Texts.def"
#undef OMBRIVANE_WORDING

void WordsAdapter::tellFontFamily() {
    if (!fontFamily().isEmpty()) return emit fontFamilyChanged();
    QMetaObject::invokeMethod(
        this, [this] { emit fontFamilyChanged(); }, Qt::QueuedConnection);
}

/// Of the families of the device the one without serifs, where names tell.
QString WordsAdapter::fontFamily() {
    const auto script = foreignScript(QString::fromStdString(ombrivane::Words::shared().language()));
    if (script == QFontDatabase::Any) return {};
    const QStringList families = QFontDatabase::families(script);
    const QStringList plain =
        families.filter("Noto Sans").isEmpty() ? families.filter("Sans") : families.filter("Noto Sans");
    return plain.isEmpty() ? families.value(0) : plain.constFirst();
}

bool WordsAdapter::hasLetters(const QString& family) {
    const auto script = foreignScript(QString::fromStdString(ombrivane::Words::shared().language()));
    return !family.isEmpty() && QFontDatabase::writingSystems(family).contains(script);
}

bool WordsAdapter::rightToLeft() { return ombrivane::Words::shared().isRightToLeft(); }

QString WordsAdapter::fill(const QString& pattern, const QVariantMap& places) {
    std::vector<std::pair<std::string, std::string>> values;
    for (auto place = places.begin(); place != places.end(); ++place)
        values.emplace_back(place.key().toStdString(), place->toString().toStdString());
    std::vector<Place> named;
    for (const auto& [name, value] : values)
        named.emplace_back(name.c_str(), value);
    return QString::fromStdString(Words::shared().fill(pattern.toStdString(), named));
}

} // namespace ombrivane::view
