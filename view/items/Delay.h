#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQmlParserStatus>
#include <QTimer>

namespace ombrivane::view {

/// What happens once, a while from now. The toolkit's own Timer is an animation: one that starts and ends
/// while the machine is busy makes the toolkit complain that its driver does not run.
class Delay : public QObject, public QQmlParserStatus {
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
    /// In milliseconds; 0 is as soon as what is under way has ended.
    Q_PROPERTY(int interval READ interval WRITE setInterval FINAL)
    /// Whether it is still to happen. Becomes false by itself, before `triggered`.
    Q_PROPERTY(bool running READ isRunning WRITE setRunning NOTIFY runningChanged FINAL)

public:
    explicit Delay(QObject* parent = nullptr);

    int interval() const { return timer_.interval(); }
    void setInterval(int milliseconds) { timer_.setInterval(milliseconds); }
    bool isRunning() const { return isRunning_; }
    void setRunning(bool running);

    /// The whole interval from now on.
    Q_INVOKABLE void restart();

    Q_SIGNAL void runningChanged();
    Q_SIGNAL void triggered();

    void classBegin() override { isComplete_ = false; }
    void componentComplete() override;

private:
    QTimer timer_;
    bool isComplete_ = true;
    bool isRunning_ = false;
};

} // namespace ombrivane::view
