#pragma once

#include <QList>
#include <QString>
#include <QUrl>

namespace ombrivane::view {

/// Adds files of fonts, "file:" or "qrc:", to those of the application, each once. One that cannot be read is
/// told to the diagnostics once. @return the family of the first that can; empty without one. Main thread.
QString addFontFaces(const QList<QUrl>& faces);

} // namespace ombrivane::view
