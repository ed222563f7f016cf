#include "Pseudo.h"

#include "words/Text.h"

namespace ombrivane::view {
namespace {

const QString plain = QStringLiteral("ABCDEFGHIJKLMNOPRSTUVWYZabcdefghijklmnoprstuvwyz");
const QString accented = QStringLiteral("ÀƁĆĎÉƑĞĤÍĴĶĽḾŃÓṔŔŠŤÚṼŴÝŽàƀćďéƒğĥíĵķľḿńóṕŕšťúṽŵýž");

/// Names of places stay as they are.
QString accentedPattern(const QString& english) {
    QString text;
    int depth = 0;
    for (const QChar letter : english) {
        if (letter == '{') ++depth;
        if (letter == '}') --depth;
        const auto at = depth == 0 ? plain.indexOf(letter) : -1;
        text += at >= 0 ? accented.at(at) : letter;
    }
    return text;
}

/// A third of the text more, in short words; what is shorter than a word stays an abbreviation.
QString padding(const QString& english) {
    constexpr qsizetype shortest = 4;
    constexpr qsizetype third = 3;
    if (english.size() < shortest) return {};
    const QString word = QStringLiteral(" ŵórď");
    return word.repeated((english.size() / third + word.size() - 1) / word.size());
}

} // namespace

QVariantMap accentedTexts() {
    QVariantMap texts;
    for (const Wording& wording : wordings) {
        const auto english =
            QString::fromUtf8(wording.english.data(), static_cast<int>(wording.english.size()));
        texts.insert(QString::fromUtf8(wording.key.data(), static_cast<int>(wording.key.size())),
                     accentedPattern(english) + padding(english));
    }
    return texts;
}

} // namespace ombrivane::view
