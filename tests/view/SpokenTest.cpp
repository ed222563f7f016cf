#include "Inspection.h"
#include "Walk.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QFile>
#include <QMetaEnum>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QRegularExpression>

#include <cstdlib>
#include <memory>

namespace ombrivane::view {
namespace {

QString nameOf(QAccessible::Role role) { return QMetaEnum::fromType<QAccessible::Role>().valueToKey(role); }

/// Clocks run.
QString steady(QString text) {
    static const QRegularExpression clock("\\d\\d:\\d\\d left");
    return text.replace(clock, "00:00 left").replace('\n', ' ');
}

QStringList statesOf(const QAccessible::State& state) {
    QStringList states;
    if (state.checkable) states << (state.checked ? "checked" : "not checked");
    if (state.selectable) states << (state.selected ? "selected" : "not selected");
    if (state.focused) states << "focused";
    return states;
}

bool isControl(QAccessible::Role role) {
    switch (role) {
    case QAccessible::Button:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::PageTab:
    case QAccessible::Link:
    case QAccessible::Slider:
    case QAccessible::SpinBox:
    case QAccessible::EditableText:
    case QAccessible::Cell:
    case QAccessible::ListItem:
        return true;
    default:
        return false;
    }
}

/// Whether a page, a sheet or an alert over it has the item's page covered.
bool isCovered(const QQuickItem* item) {
    for (; item != nullptr; item = item->parentItem()) {
        if (item->property("presentation").isValid() && !item->isEnabled()) return true;
    }
    return false;
}

/// What a client of assistive technology finds in a window, one thing a line.
class Reading {
public:
    explicit Reading(Window& window) { read(QAccessible::queryAccessibleInterface(&window.window()), 0); }

    /// In long runs of the same the first two stand for all.
    QString text() const { return lines_.join('\n') + '\n'; }

private:
    void read(QAccessibleInterface* place, int depth) {
        ASSERT_NE(place, nullptr);
        const auto state = place->state();
        if (state.invisible) return;
        const auto* item = qobject_cast<const QQuickItem*>(place->object());
        if (item != nullptr) check(*place, *item);
        const bool reads = item != nullptr && !state.offscreen;
        if (reads) add(*place, depth);
        int alike = 0;
        QAccessible::Role last = QAccessible::NoRole;
        for (int i = 0; i < place->childCount(); ++i) {
            QAccessibleInterface* child = place->child(i);
            alike = child->role() == last ? alike + 1 : 0;
            last = child->role();
            const bool isRow = last == QAccessible::Cell || last == QAccessible::ListItem;
            if (!isRow || alike < 2) read(child, depth + (reads ? 1 : 0));
        }
    }
    void add(QAccessibleInterface& place, int depth) {
        QString line = QString(2 * depth, ' ') + nameOf(place.role());
        line += " \"" + steady(place.text(QAccessible::Name)) + '"';
        const QString more = place.text(QAccessible::Description);
        if (!more.isEmpty()) line += " (" + steady(more) + ')';
        const QStringList states = statesOf(place.state());
        if (!states.isEmpty()) line += ", " + states.join(", ");
        lines_ << line;
    }
    static void check(QAccessibleInterface& place, const QQuickItem& item) {
        const auto state = place.state();
        const std::string what = nameOf(place.role()).toStdString() + " '" + item.objectName().toStdString() +
                                 "' " + place.text(QAccessible::Name).toStdString();
        EXPECT_FALSE(isCovered(&item)) << what;
        if (state.focusable && item.isEnabled()) {
            EXPECT_FALSE(place.text(QAccessible::Name).isEmpty()) << what;
        }
        const bool looksChecked = item.property("marked").toBool() || item.property("checked").toBool();
        if (place.role() == QAccessible::Button) {
            EXPECT_FALSE(looksChecked || state.checkable || state.selectable) << what;
        }
        if (looksChecked) {
            EXPECT_TRUE(state.checked || state.selected) << what;
        }
        if (!isControl(place.role()) || !item.isEnabled()) return;
        EXPECT_GE(item.width(), 44) << what;
        EXPECT_GE(item.height(), 44) << what;
    }

    QStringList lines_;
};

/// All pages as they are told to assistive technology, and whether it comes before them or after.
QString spokenPages(bool comesLate) {
    QString pages;
    for (const char* name : {"abroad", "home", "trouble", "payment"}) {
        QAccessible::setActive(!comesLate);
        service().reset();
        WalkPorts ports;
        Window window;
        walk(ports,
             window,
             std::string("tests/view/gallery/") + name + ".script",
             [&](const std::string& look) {
                 SCOPED_TRACE(look);
                 window.settle();
                 // What the last frame has left for later: a row made ahead is hushed in the turn after.
                 QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
                 QAccessible::setActive(true);
                 pages += QString("== %1\n").arg(QString::fromStdString(look)) + Reading(window).text();
                 QAccessible::setActive(!comesLate);
             });
        EXPECT_EQ(window.takeWarnings(), std::vector<std::string>());
    }
    QAccessible::setActive(false);
    return pages;
}

void expectSame(const QString& now, const QString& wanted) {
    const QStringList lines = now.split('\n');
    const QStringList kept = wanted.split('\n');
    QString page;
    for (qsizetype i = 0; i < std::max(kept.size(), lines.size()); ++i) {
        if (kept.value(i).startsWith("==")) page = kept.value(i);
        ASSERT_EQ(lines.value(i).toStdString(), kept.value(i).toStdString())
            << page.toStdString() << ", line " << i + 1 << "; scripts/pictures keeps new ones";
    }
}

TEST(SpokenTest, EveryPageIsToldAsItIsKeptWheneverAssistiveTechnologyComes) {
    const QString pages = spokenPages(false);
    expectSame(spokenPages(true), pages);
    const char* folder = std::getenv("OMBRIVANE_PICTURES");
    QFile file(folder != nullptr ? QString(folder) + "/spoken.txt" : "tests/view/spoken.txt");
    ASSERT_TRUE(file.open(folder != nullptr ? QIODevice::WriteOnly : QIODevice::ReadOnly));
    if (folder != nullptr)
        file.write(pages.toUtf8());
    else
        expectSame(pages, QString::fromUtf8(file.readAll()));
}

/// What becomes an offer while something covers it is told once nothing does; what is a shape by then is not.
TEST(SpokenTest, WhatIsCoveredIsNotToldWhateverItBecomes) {
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(R"(
        import QtQuick
        import Ombrivane.Private
        Item {
            id: page
            property bool covered: true
            Unspoken { item: page; when: page.covered }
            component Row: Item {
                property bool awaited
                readonly property bool told: !Accessible.ignored
                Accessible.role: Accessible.ListItem
                Accessible.ignored: awaited
            }
            Row { objectName: "shape"; awaited: true }
            Row { objectName: "offer"; awaited: false }
        })",
                      QUrl());
    const std::unique_ptr<QObject> page(component.create());
    ASSERT_NE(page, nullptr) << component.errorString().toStdString();
    auto* shape = page->findChild<QObject*>("shape");
    auto* offer = page->findChild<QObject*>("offer");
    shape->setProperty("awaited", false);
    offer->setProperty("awaited", true);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    EXPECT_FALSE(shape->property("told").toBool());
    EXPECT_FALSE(offer->property("told").toBool());
    page->setProperty("covered", false);
    EXPECT_TRUE(shape->property("told").toBool());
    EXPECT_FALSE(offer->property("told").toBool());
}

} // namespace
} // namespace ombrivane::view
