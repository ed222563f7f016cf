#include "appearance/FontFaces.h"

#include "platform/Platform.h"

#include <QFontDatabase>
#include <QHash>

namespace ombrivane::view {
namespace {

/// Its family; empty where it is none.
QString addFontFace(const QUrl& face) {
    const QString path = face.scheme() == "qrc" ? ":" + face.path() : face.toLocalFile();
    const auto families = QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFont(path));
    if (families.isEmpty())
        platform().diagnostics->print("Appearance: no font can be read from " +
                                      face.toString().toStdString());
    return families.value(0);
}

} // namespace

QString addFontFaces(const QList<QUrl>& faces) {
    static QHash<QUrl, QString> families;
    QString first;
    for (const auto& face : faces) {
        if (!families.contains(face)) families.insert(face, addFontFace(face));
        if (first.isEmpty()) first = families.value(face);
    }
    return first;
}

} // namespace ombrivane::view
