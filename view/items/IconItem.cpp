#include "items/IconItem.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace ombrivane::view {
namespace {

/// The one colour of every icon's drawing, which is exchanged for the wanted one.
constexpr const char* drawnColour = "#14181F";
constexpr const char* folder = ":/com.framework.Ombrivane/images/";

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

IconItem::IconItem(QQuickItem* parent) : QQuickPaintedItem(parent) { setAntialiasing(true); }

void IconItem::setName(const QString& name) {
    if (name == name_) return;
    name_ = name;
    emit nameChanged();
    update();
}

void IconItem::setColor(const QColor& color) {
    if (color == color_) return;
    color_ = color;
    emit colorChanged();
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
    return svg;
}

void IconItem::paint(QPainter* painter) {
    if (name_.isEmpty()) return;
    QSvgRenderer renderer(drawing());
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    if (renderer.isValid()) renderer.render(painter, boundingRect());
}

} // namespace ombrivane::view
