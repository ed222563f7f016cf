#pragma once

#include "images/ImageLoader.h"
#include "platform/Image.h"

#include <QQmlEngine>
#include <QQuickPaintedItem>

#include <memory>
#include <optional>

namespace ombrivane::view {

/// A picture by its address, fetched and decoded by the core; nothing is drawn until it has arrived.
class PictureItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(Picture)
    Q_PROPERTY(QString url READ url WRITE setUrl NOTIFY urlChanged FINAL)
    Q_PROPERTY(bool loaded READ loaded NOTIFY loadedChanged FINAL)

public:
    explicit PictureItem(QQuickItem* parent = nullptr) : QQuickPaintedItem(parent) {}

    const QString& url() const { return url_; }
    void setUrl(const QString& url);
    bool loaded() const;

    void paint(QPainter* painter) override;

    /// A picture that could not be fetched is fetched again when the item appears.
    void itemChange(ItemChange change, const ItemChangeData& data) override;

    Q_SIGNAL void urlChanged();
    Q_SIGNAL void loadedChanged();

private:
    void loadMissing();

    QString url_;
    std::shared_ptr<ImageLoader> loader_;
    Subscription watch_;
};

/// Draws `image` into `target`, as large as it fits.
void paintImage(QPainter& painter, const Image& image, const QRectF& target);

} // namespace ombrivane::view
