#pragma once

#include "adapters/Value.h"
#include "adapters/screens/MonthProperties.h"

namespace ombrivane::view {

/// One cell of a month. It stays while what is chosen changes, so that only its looks are drawn anew.
class DayAdapter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(QString day READ day CONSTANT FINAL)
    Q_PROPERTY(QString date READ date CONSTANT FINAL) ///< "yyyy-MM-dd"
    Q_PROPERTY(QString label READ label CONSTANT FINAL)
    Q_PROPERTY(bool selectable READ selectable NOTIFY changed FINAL)
    Q_PROPERTY(bool selected READ selected NOTIFY changed FINAL)
    Q_PROPERTY(bool inRange READ inRange NOTIFY changed FINAL)
    Q_PROPERTY(bool joinsPrevious READ joinsPrevious NOTIFY changed FINAL)
    Q_PROPERTY(bool joinsNext READ joinsNext NOTIFY changed FINAL)

public:
    DayAdapter(CalendarCell cell, QObject* parent) : QObject(parent), cell_(std::move(cell)) {}

    QString day() const { return shown(cell_.label); }
    QString date() const { return QString::fromStdString(cell_.date); }
    /// The whole date, for assistive technology.
    QString label() const;
    bool selectable() const { return cell_.selectable; }
    bool selected() const { return cell_.selected; }
    bool inRange() const { return cell_.inRange; }
    /// Whether the range reaches this chosen day from the day before, or goes on to the day after.
    bool joinsPrevious() const { return joinsPrevious_; }
    bool joinsNext() const { return joinsNext_; }

    const CalendarCell& cell() const { return cell_; }
    void update(const CalendarCell& cell, bool joinsPrevious, bool joinsNext);

    Q_SIGNAL void changed();

private:
    CalendarCell cell_;
    bool joinsPrevious_ = false;
    bool joinsNext_ = false;
};

/// One month. By hand, since its days stay, each an object of its own, and since the page lays out days where
/// the screen has fillers before the first.
class MonthAdapter : public ombrivane::view::MonthProperties {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(QQmlListProperty<ombrivane::view::DayAdapter> days READ days CONSTANT FINAL)
    Q_PROPERTY(int firstColumn READ firstColumn CONSTANT FINAL) ///< where the first day stands in its week

public:
    explicit MonthAdapter(std::shared_ptr<Screen> screen);

    QQmlListProperty<DayAdapter> days() { return readOnlyList(this, days_); }
    int firstColumn() const { return firstColumn_; }

private:
    void update();

    QList<DayAdapter*> days_; ///< children of this
    int firstColumn_ = 0;
    Subscription watch_;
};

} // namespace ombrivane::view
