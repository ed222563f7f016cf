#include "items/Unspoken.h"

#include <utility>

namespace ombrivane::view {
namespace {

/// What tells assistive technology of `item`, nullptr where nothing does.
QObject* toldOf(const QQuickItem& item) {
    for (QObject* child : item.children()) {
        if (child->inherits("QQuickAccessibleAttached")) return child;
    }
    return nullptr;
}

} // namespace

void Unspoken::setItem(QQuickItem* item) {
    if (item == item_) return;
    item_ = item;
    update();
    emit changed();
}

void Unspoken::setWhen(bool when) {
    if (when == when_) return;
    when_ = when;
    update();
    emit changed();
}

void Unspoken::update() {
    release();
    if (when_ && item_) hush(*item_);
}

/// What is added to an item is not yet what it will be when the item is told of it.
void Unspoken::updateSoon() {
    if (std::exchange(isDue_, true)) return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            isDue_ = false;
            update();
        },
        Qt::QueuedConnection);
}

void Unspoken::hush(QQuickItem& item) {
    watches_.push_back(connect(&item, &QQuickItem::childrenChanged, this, &Unspoken::updateSoon));
    if (QObject* told = toldOf(item); told != nullptr) {
        if (!told->property("ignored").toBool()) {
            told->setProperty("ignored", true);
            hushed_.emplace_back(told);
        }
        // A row that is used for another offer says anew whether it is told.
        watches_.push_back(connect(told, SIGNAL(ignoredChanged()), this, SLOT(updateSoon())));
    }
    for (QQuickItem* child : item.childItems())
        hush(*child);
}

void Unspoken::release() {
    for (const auto& watch : watches_)
        disconnect(watch);
    watches_.clear();
    for (const auto& told : hushed_) {
        // What is a shape by now stays one.
        if (told && !told->parent()->property("awaited").toBool()) told->setProperty("ignored", false);
    }
    hushed_.clear();
}

} // namespace ombrivane::view
