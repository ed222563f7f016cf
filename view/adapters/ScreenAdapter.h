#pragma once

#include "keyed/Screen.h"
#include "richtext/ShownText.h"

#include <QObject>
#include <QQmlEngine>
#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <vector>

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

/// A text of the core as a page may show it.
inline QString shown(const std::string& text) { return QString::fromStdString(shownText(text)); }
inline bool shown(bool value) { return value; }
inline int shown(int value) { return value; }
inline double shown(double value) { return value; }

} // namespace ombrivane::view

/// Gives the adapter its screen as `core()`. First line of an adapter.
#define OMBRIVANE_SCREEN(Adapter, Core)                                                                      \
public:                                                                                                      \
    explicit Adapter(std::shared_ptr<ombrivane::Screen> screen) : ScreenAdapter(std::move(screen)) {}        \
    ombrivane::Core& core() const { return static_cast<ombrivane::Core&>(*screen()); }

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

/// One intent without arguments, and whether its control is usable.
#define OMBRIVANE_INTENT(name, source)                                                                       \
    Q_PROPERTY(bool name##Enabled READ name##Enabled NOTIFY name##EnabledChanged FINAL)                      \
public:                                                                                                      \
    Q_INVOKABLE void name() { source(); }                                                                    \
    bool name##Enabled() const { return (source).isEnabled(); }                                              \
    Q_SIGNAL void name##EnabledChanged();                                                                    \
                                                                                                             \
private:                                                                                                     \
    ombrivane::Subscription name##Watch_ = watch(source, [this] { emit name##EnabledChanged(); });

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
