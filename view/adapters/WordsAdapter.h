#pragma once

#include "keyed/Observable.h"

#include <QObject>
#include <QQmlEngine>
#include <QVariantMap>

namespace ombrivane::view {

/// Every text of the component for its pages, by key, in the customer's language.
///
/// Of what is included several times moc reads the first, which has to be the one below.
class WordsAdapter : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(Words)
    QML_SINGLETON
#define OMBRIVANE_WORDING(key, english) Q_PROPERTY(QString key READ key NOTIFY changed FINAL)
#include "words/Texts.def"
#undef OMBRIVANE_WORDING
    /// Whether the language is written from the right to the left.
    Q_PROPERTY(bool rightToLeft READ rightToLeft NOTIFY changed FINAL)
    /// A family of the device for the letters of the language; empty where the component's own has them.
    Q_PROPERTY(QString fontFamily READ fontFamily NOTIFY fontFamilyChanged FINAL)

public:
    WordsAdapter();

#define OMBRIVANE_WORDING(key, english) static QString key();
#include "words/Texts.def"
#undef OMBRIVANE_WORDING

    static bool rightToLeft();
    static QString fontFamily();
    /// Whether `family`, which may be none, has the letters of a language that the component's own lacks.
    static bool hasLetters(const QString& family);

    /// A text with named places, each filled in: `Words.fill(Words.fieldIsMissing, {field: name})`.
    Q_INVOKABLE static QString fill(const QString& pattern, const QVariantMap& places);

    /// Told ahead of the texts that want the family, and behind those that wanted the one before: no text is
    /// laid out in a family that lacks its letters.
    Q_SIGNAL void fontFamilyChanged();
    Q_SIGNAL void changed();

private:
    void tellFontFamily();

    Subscription fontFamilyChanged_;
    Subscription changed_;
};

} // namespace ombrivane::view
