#include "adapters/WordsAdapter.h"

#include "words/Words.h"

namespace ombrivane::view {

WordsAdapter::WordsAdapter() :
    changed_(ombrivane::Words::shared().observe(settled([this] { emit changed(); }))) {}

#define OMBRIVANE_WORDING(key, english)                                                                      \
    QString WordsAdapter::key() { return QString::fromStdString(said(Text::key)); }
#include "words/Texts.def"
#undef OMBRIVANE_WORDING

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
