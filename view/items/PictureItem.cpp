#include "items/PictureItem.h"

#include "images/ImageCacheKey.h"

#include <QImage>
#include <QPainter>

namespace ombrivane::view {

void PictureItem::setUrl(const QString& url) {
    if (url == url_) return loadMissing();
    url_ = url;
    emit urlChanged();
    loader_ = std::make_shared<ImageLoader>(url.toStdString(), ImageCacheKey::defaultValue());
    watch_ = loader_->image.observe([this] {
        emit loadedChanged();
        update();
    });
    loader_->load();
    emit loadedChanged();
    update();
}

void PictureItem::loadMissing() {
    if (loader_ && !loaded()) loader_->load();
}

void PictureItem::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemVisibleHasChanged && data.boolValue) loadMissing();
    QQuickPaintedItem::itemChange(change, data);
}

bool PictureItem::loaded() const { return loader_ && loader_->image->has_value(); }

void PictureItem::paint(QPainter* painter) {
    if (loaded()) paintImage(*painter, *loader_->image.get(), boundingRect());
}

void paintImage(QPainter& painter, const Image& image, const QRectF& target) {
    const QImage view(
        image.points->data(), image.width, image.height, image.width * 4, QImage::Format_RGBA8888);
    const QSizeF size = QSizeF(view.size()).scaled(target.size(), Qt::KeepAspectRatio);
    QRectF place(QPointF(), size);
    place.moveCenter(target.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, view);
}

} // namespace ombrivane::view
