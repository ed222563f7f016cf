#include "Onscreen.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QHash>
#include <QMouseEvent>

#include <algorithm>
#include <limits>
#include <vector>

namespace ombrivane::demo {
namespace {

std::string spokenName(const QQuickItem& item) {
    auto* spoken = QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(&item));
    return spoken != nullptr ? spoken->text(QAccessible::Name).toStdString() : std::string();
}

void collectTexts(const QQuickItem& item, Json& texts) {
    if (!item.isVisible() || item.opacity() == 0) return;
    if (item.inherits("QQuickText")) {
        const QRectF place = item.mapRectToScene(item.boundingRect());
        texts.push_back(
            Json{{"text", item.property("text").toString().toStdString()},
                 {"format", item.property("textFormat").toInt() == Qt::PlainText ? "plain" : "other"},
                 {"name", spokenName(item)},
                 {"rectangle", {place.x(), place.y(), place.width(), place.height()}}});
    }
    for (const QQuickItem* child : item.childItems())
        collectTexts(*child, texts);
}

void collectNamed(QQuickItem* item, const QString& name, std::vector<QQuickItem*>& found) {
    if (!item->isVisible()) return;
    if (item->objectName() == name) found.push_back(item);
    for (QQuickItem* child : item->childItems())
        collectNamed(child, name, found);
}

QPointF middleOf(const QQuickItem& item) {
    return item.mapToScene(QPointF(item.width() / 2, item.height() / 2));
}

int distance(QRgb one, QRgb other) {
    const int red = qRed(one) - qRed(other), green = qGreen(one) - qGreen(other),
              blue = qBlue(one) - qBlue(other);
    return red * red + green * green + blue * blue;
}

} // namespace

Json visibleTexts(const QQuickWindow& window) {
    Json texts = Json::array();
    collectTexts(*window.contentItem(), texts);
    return texts;
}

QQuickItem* visibleItem(const QQuickWindow& window, const QString& name) {
    std::vector<QQuickItem*> found;
    collectNamed(window.contentItem(), name, found);
    if (found.empty()) return nullptr;
    const auto inside =
        std::find_if(found.rbegin(), found.rend(), [](const QQuickItem* item) { return isInside(*item); });
    return inside != found.rend() ? *inside : found.back();
}

bool isInside(const QQuickItem& item) {
    return QRectF(QPointF(), item.window()->size()).contains(middleOf(item));
}

void pressOn(const QQuickItem& item, bool down) {
    QQuickWindow* window = item.window();
    const QPointF place = middleOf(item);
    QMouseEvent event(down ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease,
                      place,
                      place,
                      window->mapToGlobal(place),
                      Qt::LeftButton,
                      down ? Qt::LeftButton : Qt::NoButton,
                      Qt::NoModifier);
    QElapsedTimer now;
    now.start();
    event.setTimestamp(static_cast<quint64>(now.msecsSinceReference()));
    QCoreApplication::sendEvent(window, &event);
}

QImage lightened(const QImage& picture) {
    const QImage whole = picture.convertToFormat(QImage::Format_RGB32);
    QHash<QRgb, int> counts;
    for (int y = 0; y < whole.height(); ++y)
        for (int x = 0; x < whole.width(); ++x)
            ++counts[whole.pixel(x, y)];
    QList<QRgb> colours = counts.keys();
    constexpr qsizetype most = 256;
    std::sort(colours.begin(), colours.end(), [&counts](QRgb one, QRgb other) {
        return std::pair(counts.value(one), one) > std::pair(counts.value(other), other);
    });
    QHash<QRgb, uchar> nearest;
    for (const QRgb colour : colours) {
        int best = 0, least = std::numeric_limits<int>::max();
        for (int i = 0; i < std::min(most, colours.size()) && least > 0; ++i)
            if (const int apart = distance(colour, colours.at(i)); apart < least) best = i, least = apart;
        nearest.insert(colour, static_cast<uchar>(best));
    }
    QImage light(whole.size(), QImage::Format_Indexed8);
    light.setColorTable(colours.mid(0, most));
    for (int y = 0; y < whole.height(); ++y)
        for (int x = 0; x < whole.width(); ++x)
            light.setPixel(x, y, nearest.value(whole.pixel(x, y)));
    return light;
}

} // namespace ombrivane::demo
