#pragma once

#include <QList>
#include <QQmlListProperty>

namespace ombrivane::view {

/// A list of objects that a page may read and not change. `objects` must live as long as `owner`.
template <class T> QQmlListProperty<T> readOnlyList(QObject* owner, QList<T*>& objects) {
    return {owner,
            &objects,
            [](QQmlListProperty<T>* list) { return static_cast<QList<T*>*>(list->data)->size(); },
            [](QQmlListProperty<T>* list, qsizetype index) {
                return static_cast<QList<T*>*>(list->data)->at(index);
            }};
}

} // namespace ombrivane::view
