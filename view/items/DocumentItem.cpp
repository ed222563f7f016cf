#include "items/DocumentItem.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>

namespace ombrivane::view {
namespace {

/// The picture, decoded so that it covers `place` and is cut to it; null when it cannot be decoded.
QImage covering(const std::string& jpeg, const QSize& place) {
    QByteArray bytes = QByteArray::fromRawData(jpeg.data(), static_cast<qsizetype>(jpeg.size()));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "jpeg");
    const QSize whole = reader.size();
    if (!whole.isValid() || place.isEmpty()) return {};
    const QSize scaled = whole.scaled(place, Qt::KeepAspectRatioByExpanding);
    reader.setScaledSize(scaled);
    QRect cut(QPoint(), place);
    cut.moveCenter(QRect(QPoint(), scaled).center());
    reader.setScaledClipRect(cut);
    return reader.read();
}

} // namespace

void DocumentItem::setValue(const DocumentValue& value) {
    if (value == value_) return;
    value_ = value;
    drawn_ = {};
    drawnFor_ = {};
    emit valueChanged();
    update();
}

void DocumentItem::paint(QPainter* painter) {
    const auto& picture = value_.picture();
    if (!picture || !picture->jpeg) return;
    const QSize wanted = (boundingRect().size() * painter->deviceTransform().m11()).toSize();
    if (drawnFor_ != wanted) {
        drawn_ = covering(*picture->jpeg, wanted);
        drawnFor_ = wanted;
    }
    QPainterPath shape;
    shape.addRoundedRect(boundingRect(), radius_, radius_);
    painter->setClipPath(shape);
    painter->drawImage(boundingRect(), drawn_);
}

} // namespace ombrivane::view
