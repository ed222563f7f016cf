#include "items/FocusRing.h"

#include <QPainter>
#include <QQuickWindow>

#include <algorithm>

namespace ombrivane::view {
namespace {

constexpr double stroke = 2; ///< points of each of the two tones
constexpr double reach = 2 * stroke;
/// A list learns the heights of its rows as it scrolls.
constexpr int framesToSettle = 30;

/// What the ring goes around.
const QQuickItem& ringedBy(const QQuickItem& control) {
    for (const char* name : {"ringed", "background"}) {
        if (const auto* item = control.property(name).value<QQuickItem*>(); item != nullptr) return *item;
    }
    return control;
}

/// The step by which a stretch of a line comes between two ends; its beginning counts where it is too long.
double stepIntoView(double begin, double end, double from, double to) {
    if (begin < from) return begin - from;
    return end > to ? std::min(end - to, begin - from) : 0;
}

void scroll(QQuickItem& area, const char* position, double step, double least, double most) {
    const double now = area.property(position).toDouble();
    const double then = std::max(least, std::min(most, now + step));
    if (then != now) area.setProperty(position, then);
}

void bringIntoView(QQuickItem& area, const QQuickItem& item) {
    const auto of = [&area](const char* name) { return area.property(name).toDouble(); };
    const QRectF place = item.mapRectToItem(&area, QRectF(QPointF(), item.size()));
    scroll(area,
           "contentY",
           stepIntoView(place.top() - reach,
                        place.bottom() + reach,
                        of("coveredTop"),
                        area.height() - of("coveredBottom")),
           of("originY") - of("topMargin"),
           std::max(of("originY") - of("topMargin"),
                    of("originY") + of("contentHeight") + of("bottomMargin") - area.height()));
    if (of("contentWidth") <= area.width()) return;
    scroll(area,
           "contentX",
           stepIntoView(place.left() - reach, place.right() + reach, 0, area.width()),
           of("originX") - of("leftMargin"),
           of("originX") + of("contentWidth") + of("rightMargin") - area.width());
}

} // namespace

FocusRing::FocusRing(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    setVisible(false);
    connect(this, &FocusRing::changed, this, [this] { update(); });
}

void FocusRing::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemSceneChange) watch(data.window);
    QQuickPaintedItem::itemChange(change, data);
}

void FocusRing::watch(QQuickWindow* window) {
    if (watched_) {
        watched_->removeEventFilter(this);
        watched_->disconnect(this);
    }
    watched_ = window;
    if (window == nullptr) return;
    window->installEventFilter(this);
    connect(window, &QQuickWindow::afterAnimating, this, &FocusRing::follow);
    connect(window, &QQuickWindow::activeFocusItemChanged, this, [window] { window->update(); });
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        byKeys_ = true;
        reveals_ = framesToSettle;
        if (watched_) watched_->update();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
        byKeys_ = false;
        reveals_ = 0;
        break;
    case QEvent::Wheel:
        reveals_ = 0;
        break;
    default:
        break;
    }
    return QQuickPaintedItem::eventFilter(watched, event);
}

QQuickItem* FocusRing::focused() const {
    QQuickItem* item = watched_ ? watched_->activeFocusItem() : nullptr;
    if (item == nullptr || parentItem() == nullptr || !parentItem()->isAncestorOf(item)) return nullptr;
    if (item->flags().testFlag(ItemAcceptsInputMethod)) return item;
    // An entry of a wheel has the focus of its wheel.
    while (item != parentItem() && !item->activeFocusOnTab())
        item = item->parentItem();
    return byKeys_ && item != parentItem() ? item : nullptr;
}

/// Before each frame, since whatever the control lies in may have moved.
void FocusRing::follow() {
    const QQuickItem* control = focused();
    bool shown = control != nullptr && control->isVisible();
    if (control != last_) reveals_ = framesToSettle;
    last_ = control;
    if (shown) {
        if (reveals_ > 0) reveal(*control);
        const QQuickItem& around = ringedBy(*control);
        const QRectF stage(QPointF(), parentItem()->size());
        const QRectF place = around.mapRectToItem(parentItem(), QRectF(QPointF(), around.size()))
                                 .adjusted(-reach, -reach, reach, reach)
                                 .intersected(stage);
        // A page that slides may not be on the stage yet.
        shown = !place.isEmpty();
        setVisible(shown);
        if (!shown) return;
        setPosition(place.topLeft());
        setSize(place.size());
        const double radius = std::min(around.property("radius").toDouble(), around.height() / 2) + reach;
        if (radius != radius_) update();
        radius_ = radius;
    }
    setVisible(shown);
}

void FocusRing::reveal(const QQuickItem& control) {
    if (--reveals_ > 0) watched_->update();
    for (QQuickItem* at = control.parentItem(); at != nullptr; at = at->parentItem()) {
        if (at->inherits("QQuickFlickable")) bringIntoView(*at, control);
    }
}

void FocusRing::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    double inset = stroke / 2;
    for (const QColor& tone : {ink_, canvas_}) {
        painter->setPen(QPen(tone, stroke));
        const double radius = std::max(0.0, radius_ - inset);
        painter->drawRoundedRect(boundingRect().adjusted(inset, inset, -inset, -inset), radius, radius);
        inset += stroke;
    }
}

} // namespace ombrivane::view
