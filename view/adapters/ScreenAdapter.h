#pragma once

#include "adapters/Shown.h"
#include "keyed/Screen.h"

#include <QObject>
#include <QQmlEngine>

#include <memory>
#include <utility>

namespace ombrivane::view {

/// What a page sees of its screen: typed properties that follow the core's fields, and intents that do what a
/// tap does. It holds the screen as long as the page lives.
class ScreenAdapter : public QObject {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit ScreenAdapter(std::shared_ptr<Screen> screen) : screen_(std::move(screen)) {}

    const std::shared_ptr<Screen>& screen() const { return screen_; }

protected:
    /// Follows `member`; `told` is called once for all changes of a turn, when it ends: a page that reads
    /// other members meanwhile finds them settled.
    template <class Observed> Subscription watch(Observed& member, Observer told) {
        const bool tellsAtOnce = member.kind() == MemberKind::field; // all else tells at the end already
        return member.observe(tellsAtOnce ? settled(std::move(told)) : std::move(told));
    }

private:
    std::shared_ptr<Screen> screen_;
};

} // namespace ombrivane::view

/// Gives the adapter its screen as `core()`. First line of an adapter.
#define OMBRIVANE_SCREEN(Adapter, Base, Core)                                                                \
public:                                                                                                      \
    explicit Adapter(std::shared_ptr<ombrivane::Screen> screen) : Base(std::move(screen)) {}                 \
    ombrivane::Core& core() const { return static_cast<ombrivane::Core&>(*screen()); }                       \
                                                                                                             \
private:

/// One readable field: property, signal and conversion. `source` is an expression over `core()`.
#define OMBRIVANE_FIELD(Type, name, source)                                                                  \
    Q_PROPERTY(Type name READ name NOTIFY name##Changed FINAL)                                               \
public:                                                                                                      \
    Type name() const { return ombrivane::view::shown((source).get()); }                                     \
    Q_SIGNAL void name##Changed();                                                                           \
                                                                                                             \
private:                                                                                                     \
    ombrivane::Subscription name##Watch_ = watch(source, [this] { emit name##Changed(); });

#define OMBRIVANE_TEXT(name, source) OMBRIVANE_FIELD(QString, name, source)
#define OMBRIVANE_FLAG(name, source) OMBRIVANE_FIELD(bool, name, source)

/// One intent without arguments.
#define OMBRIVANE_INTENT(name, source)                                                                       \
public:                                                                                                      \
    Q_INVOKABLE void name() { source(); }                                                                    \
                                                                                                             \
private:

/// Whether the condition of an intent allows it: what its control is drawn by.
#define OMBRIVANE_ENABLED(name, source)                                                                      \
    Q_PROPERTY(bool name##Enabled READ name##Enabled NOTIFY name##EnabledChanged FINAL)                      \
public:                                                                                                      \
    bool name##Enabled() const { return (source).isAllowed(); }                                              \
    Q_SIGNAL void name##EnabledChanged();                                                                    \
                                                                                                             \
private:                                                                                                     \
    ombrivane::Subscription name##EnabledWatch_ = watch(source, [this] { emit name##EnabledChanged(); });

/// One intent that takes a text.
#define OMBRIVANE_INPUT(name, source)                                                                        \
public:                                                                                                      \
    Q_INVOKABLE void name(const QString& text) { source(text.toStdString()); }                               \
                                                                                                             \
private:

/// One intent that takes a number.
#define OMBRIVANE_AMOUNT(name, source)                                                                       \
public:                                                                                                      \
    Q_INVOKABLE void name(double value) { source(value); }                                                   \
                                                                                                             \
private:

/// One list whose rows are screens of their own.
#define OMBRIVANE_ROWS(name, source)                                                                         \
    Q_PROPERTY(ombrivane::view::RowsModel* name READ name CONSTANT FINAL)                                    \
public:                                                                                                      \
    ombrivane::view::RowsModel* name() { return &name##Model_; }                                             \
                                                                                                             \
private:                                                                                                     \
    ombrivane::view::RowsModel name##Model_{screen(), source};

/// A screen shown inside of this one, by an adapter of its own.
#define OMBRIVANE_PART(Adapter, name, source)                                                                \
    Q_PROPERTY(ombrivane::view::Adapter* name READ name CONSTANT FINAL)                                      \
public:                                                                                                      \
    ombrivane::view::Adapter* name() { return &name##Part_; }                                                \
                                                                                                             \
private:                                                                                                     \
    ombrivane::view::Adapter name##Part_{source};
