#include "items/IconItem.h"

#include "words/Words.h"

#include <QCache>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <string_view>

namespace ombrivane::view {
namespace {

/// The one colour of every icon's drawing, which is exchanged for the wanted one.
constexpr const char* drawnColour = "#14181F";
/// What a drawing that fades away has in the colour of what lies behind it.
constexpr const char* drawnGround = "#F3F5F9";
/// The drawings that point the way.
constexpr std::array<std::string_view, 8> pointing{"arrowLeftIcon",
                                                   "chevronLeftIcon",
                                                   "chevronRightIcon",
                                                   "departureBlackIcon",
                                                   "paperPlaneIcon",
                                                   "returnBlackIcon",
                                                   "segmentPlane",
                                                   "toIcon"};
constexpr const char* folder = ":/com.framework.Ombrivane/images/";

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What tells one picture of a drawing from another.
struct PictureKey {
    QString name;
    QRgb color;
    QRgb ground;
    bool dark;
    double width;
    double height;
    double scale;
    bool mirrored;

    bool operator==(const PictureKey&) const = default;
};

std::size_t qHash(const PictureKey& key, std::size_t seed) {
    return qHashMulti(
        seed, key.name, key.color, key.ground, key.dark, key.width, key.height, key.scale, key.mirrored);
}

/// Drawn pictures, by thread, since each window may draw in a thread of its own. The same few icons are
/// wanted again and again, and reading a drawing costs more than all else about an item.
QCache<PictureKey, QImage>& pictures() {
    constexpr qsizetype mostBytes = 4 << 20;
    thread_local QCache<PictureKey, QImage> cache(mostBytes);
    return cache;
}

} // namespace

IconItem::IconItem(QQuickItem* parent) : QQuickPaintedItem(parent) { setAntialiasing(true); }

void IconItem::setName(const QString& name) {
    if (name == name_) return;
    name_ = name;
    const bool points = std::find(pointing.begin(), pointing.end(), name.toStdString()) != pointing.end();
    turns_ = points ? Words::shared().observe([this] { update(); }) : Subscription();
    emit nameChanged();
    update();
}

void IconItem::setColor(const QColor& color) {
    if (color == color_) return;
    color_ = color;
    emit colorChanged();
    update();
}

void IconItem::setGround(const QColor& ground) {
    if (ground == ground_) return;
    ground_ = ground;
    emit groundChanged();
    update();
}

void IconItem::setDark(bool dark) {
    if (dark == dark_) return;
    dark_ = dark;
    emit darkChanged();
    update();
}

QByteArray IconItem::drawing() const {
    QByteArray svg = dark_ ? contents(QString(folder) + "dark/" + name_ + ".svg") : QByteArray();
    if (svg.isEmpty()) svg = contents(QString(folder) + name_ + ".svg");
    if (color_.alpha() > 0) svg.replace(drawnColour, color_.name(QColor::HexRgb).toLatin1());
    if (ground_.alpha() > 0) svg.replace(drawnGround, ground_.name(QColor::HexRgb).toLatin1());
    return svg;
}

QImage IconItem::picture(double scale) const {
    const QRectF place = boundingRect();
    const PictureKey key{name_,
                         color_.rgba(),
                         ground_.rgba(),
                         dark_,
                         place.width(),
                         place.height(),
                         scale,
                         turns_ && Words::shared().isRightToLeft()};
    if (const QImage* kept = pictures().object(key)) return *kept;
    QImage image(static_cast<int>(std::ceil(place.width() * scale)),
                 static_cast<int>(std::ceil(place.height() * scale)),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(drawing());
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    if (renderer.isValid()) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        if (key.mirrored) {
            painter.translate(place.width(), 0);
            painter.scale(-1, 1);
        }
        renderer.render(&painter, place);
    }
    pictures().insert(key, std::make_unique<QImage>(image).release(), image.sizeInBytes());
    return image;
}

void IconItem::paint(QPainter* painter) {
    if (name_.isEmpty()) return;
    painter->drawImage(QPointF(), picture(painter->deviceTransform().m11()));
}

} // namespace ombrivane::view
