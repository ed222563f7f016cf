#pragma once

#include "items/StageModel.h"
#include "session/OmbrivaneView.h"

#include <QObject>
#include <QQmlEngine>

#include <limits>
#include <memory>
#include <optional>

namespace ombrivane::view {

/// The component for Qt Quick: what the host passes in, what it gets back, and the stage that shows the
/// screens. Set the arguments, then `open`. Destroying it drops the view.
class OmbrivaneSession : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString clientId MEMBER clientId FINAL)
    Q_PROPERTY(QString clientSecret MEMBER clientSecret FINAL)
    Q_PROPERTY(QString userType MEMBER userType FINAL)          ///< empty: "customer"
    Q_PROPERTY(double walletBalance MEMBER walletBalance FINAL) ///< NaN: no limit
    Q_PROPERTY(QString phone MEMBER phone FINAL)
    Q_PROPERTY(QString environment MEMBER environment FINAL) ///< empty: "test"
    Q_PROPERTY(ombrivane::view::StageModel* stage READ stage CONSTANT FINAL)

public:
    explicit OmbrivaneSession(QObject* parent = nullptr) : QObject(parent) {}
    ~OmbrivaneSession() override;

    /// What the stage of `OmbrivaneView.qml` shows.
    StageModel* stage() { return &stage_; }
    /// The stack of screens; nullptr while the component is not open.
    Navigator* navigator() const { return view_ ? view_->navigator() : nullptr; }

    /// Shows the component; shown again, it starts again.
    Q_INVOKABLE void open();
    /// Drops the component, as a host may at any time.
    Q_INVOKABLE void drop();

    /// Called in place of the signals, on the thread that the component reached it on. Set before `open`.
    void setCallback(CompletionCallback callback) { callback_ = std::move(callback); }

    QString clientId;     ///< the wallet's own, from the booking service
    QString clientSecret; ///< never shown, printed or written
    QString userType;     ///< empty: "customer"
    double walletBalance = std::numeric_limits<double>::quiet_NaN(); ///< in whole rupees; NaN: no limit
    QString phone;                                                   ///< of the customer, empty where unknown
    QString environment;                                             ///< empty: "test"

    /// The hand-over, or progress where "exit" in it is false; JSON. On the main thread.
    Q_SIGNAL void finished(const QString& dictionary);
    /// The component failed, in the words of the error. On the main thread.
    Q_SIGNAL void failed(const QString& message);
    /// The component wants to be taken off the screen.
    Q_SIGNAL void closed();

private:
    CompletionCallback callback();

    CompletionCallback callback_;
    StageModel stage_;
    std::unique_ptr<OmbrivaneView> view_;
};

} // namespace ombrivane::view
