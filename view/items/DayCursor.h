#pragma once

#include "adapters/ScreenAdapter.h"

#include <QQmlEngine>
#include <QString>

namespace ombrivane::view {

/// The day of a travel calendar that the keys stand on, and where they lead: only to days that can be chosen.
class DayCursor : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// The adapter of the calendar.
    Q_PROPERTY(ombrivane::view::ScreenAdapter* calendar MEMBER calendar_ WRITE setCalendar FINAL)
    /// "yyyy-MM-dd". At first the first chosen day, or else the first that can be chosen.
    Q_PROPERTY(QString day MEMBER day_ NOTIFY moved FINAL)
    /// The position of its month.
    Q_PROPERTY(int month MEMBER month_ NOTIFY moved FINAL)

public:
    explicit DayCursor(QObject* parent = nullptr) : QObject(parent) {}

    void setCalendar(ScreenAdapter* calendar);

    /// By so many days, and no further than the first and the last day.
    Q_INVOKABLE void moveBy(int days);
    /// By so many months, to the same day of it or the last one of a shorter month.
    Q_INVOKABLE void moveByMonths(int months);
    /// To a day that was tapped.
    Q_INVOKABLE void moveTo(const QString& day);

    Q_SIGNAL void moved();

private:
    void stand(int month, const std::string& day);

    ScreenAdapter* calendar_ = nullptr;
    QString day_;
    int month_ = 0;
};

} // namespace ombrivane::view
