#include "items/Delay.h"

namespace ombrivane::view {

Delay::Delay(QObject* parent) : QObject(parent) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, [this] {
        setRunning(false);
        emit triggered();
    });
}

void Delay::setRunning(bool running) {
    if (running == isRunning_) return;
    isRunning_ = running;
    if (!running)
        timer_.stop();
    else if (isComplete_) // the interval may be told after this
        timer_.start();
    emit runningChanged();
}

void Delay::restart() {
    setRunning(true);
    timer_.start();
}

void Delay::componentComplete() {
    isComplete_ = true;
    if (isRunning_) timer_.start();
}

} // namespace ombrivane::view
