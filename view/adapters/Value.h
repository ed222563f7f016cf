#pragma once

#include "adapters/Shown.h"

#include <QList>
#include <QObject>
#include <QQmlEngine>
#include <QQmlListProperty>

#include <utility>
#include <vector>

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

/// One object of `owner` for each value.
template <class Value, class Lines>
QList<Value*> makeValues(const std::vector<Lines>& lines, QObject* owner) {
    QList<Value*> values;
    for (const auto& line : lines)
        values.append(new Value(line, owner)); // owned by its parent
    return values;
}

/// The same in the place of those that stand there, which a page may still be at work on.
template <class Value, class Lines>
void renewValues(QList<Value*>& values, const std::vector<Lines>& lines, QObject* owner) {
    const auto gone = std::exchange(values, makeValues<Value>(lines, owner));
    for (auto* value : gone)
        value->deleteLater();
}

} // namespace ombrivane::view

/// Gives the class the value that it shows as `lines_`. First line of such a class.
#define OMBRIVANE_VALUE(Value, Lines)                                                                        \
public:                                                                                                      \
    Value(ombrivane::Lines lines, QObject* parent) : QObject(parent), lines_(std::move(lines)) {}            \
                                                                                                             \
protected:                                                                                                   \
    ombrivane::Lines lines_;                                                                                 \
                                                                                                             \
private:

/// One line of a value, which never changes.
#define OMBRIVANE_LINE(name)                                                                                 \
    Q_PROPERTY(QString name READ name CONSTANT FINAL)                                                        \
public:                                                                                                      \
    QString name() const { return ombrivane::view::shown(lines_.name); }                                     \
                                                                                                             \
private:

/// A list of texts of a value, which never changes.
#define OMBRIVANE_TEXTS(name)                                                                                \
    Q_PROPERTY(QStringList name READ name CONSTANT FINAL)                                                    \
public:                                                                                                      \
    QStringList name() const { return ombrivane::view::shown(lines_.name); }                                 \
                                                                                                             \
private:

/// Values inside of a value. They change when whoever changes `lines_` says so.
#define OMBRIVANE_LINES(Value, name)                                                                         \
    Q_PROPERTY(QQmlListProperty<ombrivane::view::Value> name READ name NOTIFY name##Changed FINAL)           \
public:                                                                                                      \
    QQmlListProperty<ombrivane::view::Value> name() {                                                        \
        return ombrivane::view::readOnlyList(this, name##Values_);                                           \
    }                                                                                                        \
    Q_SIGNAL void name##Changed();                                                                           \
                                                                                                             \
protected:                                                                                                   \
    void name##Renewed() {                                                                                   \
        ombrivane::view::renewValues(name##Values_, lines_.name, this);                                      \
        emit name##Changed();                                                                                \
    }                                                                                                        \
                                                                                                             \
private:                                                                                                     \
    QList<ombrivane::view::Value*> name##Values_ =                                                           \
        ombrivane::view::makeValues<ombrivane::view::Value>(lines_.name, this);

/// A list of values that a screen derives.
#define OMBRIVANE_VALUES(Value, name, source)                                                                \
    Q_PROPERTY(QQmlListProperty<ombrivane::view::Value> name READ name NOTIFY name##Changed FINAL)           \
public:                                                                                                      \
    QQmlListProperty<ombrivane::view::Value> name() {                                                        \
        return ombrivane::view::readOnlyList(this, name##Values_);                                           \
    }                                                                                                        \
    Q_SIGNAL void name##Changed();                                                                           \
                                                                                                             \
private:                                                                                                     \
    QList<ombrivane::view::Value*> name##Values_ =                                                           \
        ombrivane::view::makeValues<ombrivane::view::Value>((source).get(), this);                           \
    ombrivane::Subscription name##Watch_ = watch(source, [this] {                                            \
        ombrivane::view::renewValues(name##Values_, (source).get(), this);                                   \
        emit name##Changed();                                                                                \
    });
