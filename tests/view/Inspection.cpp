#include "Inspection.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QFontMetricsF>

#include <algorithm>

namespace ombrivane::view {
namespace {

constexpr double half = 0.5;

std::string describe(const QQuickItem& item) {
    const QQuickItem* parent = item.parentItem();
    return item.metaObject()->className() + std::string(" '") + item.objectName().toStdString() + "' \"" +
           item.property("text").toString().left(60).toStdString() + "\" in " +
           (parent != nullptr ? parent->metaObject()->className() : "nothing");
}

bool isFocused(const QQuickItem& item) { return item.isEnabled(); }

void expectText(const QQuickItem& item) {
    EXPECT_EQ(item.property("textFormat").toInt(), Qt::PlainText) << describe(item);
    EXPECT_FALSE(item.property("truncated").toBool()) << describe(item);
    EXPECT_LE(item.property("contentWidth").toDouble(), item.width() + half) << describe(item);
    EXPECT_LE(item.property("contentHeight").toDouble(), item.height() + half) << describe(item);
}

bool isPlainWord(const QString& word) {
    constexpr int longest = 14;
    return word.size() <= longest &&
           std::all_of(word.begin(), word.end(), [](QChar c) { return c.isLetterOrNumber(); });
}

/// A line is broken between words only, where the words are such as people write.
void expectWholeWords(const QQuickItem& item) {
    const QFontMetricsF metrics(item.property("font").value<QFont>());
    for (const QString& word : item.property("text").toString().split(' ', Qt::SkipEmptyParts)) {
        if (!isPlainWord(word)) continue;
        EXPECT_LE(metrics.horizontalAdvance(word), item.width() + 0.1)
            << word.toStdString() << " of " << describe(item);
    }
}

/// A list is one stop of the Tab key, whatever the number of its rows.
bool isRow(const QAccessibleInterface& accessible) {
    return accessible.role() == QAccessible::ListItem || accessible.role() == QAccessible::Cell;
}

void expectControl(QQuickItem& item) {
    const auto* accessible = QAccessible::queryAccessibleInterface(&item);
    ASSERT_NE(accessible, nullptr) << describe(item);
    EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty()) << describe(item);
    EXPECT_GE(item.width(), 44) << describe(item);
    EXPECT_GE(item.height(), 44) << describe(item);
    EXPECT_TRUE(item.activeFocusOnTab() || !item.isEnabled() || isRow(*accessible)) << describe(item);
}

/// What a field or a message says stands inside of its border, a message in two lines at most.
void expectTextsInside(const QQuickItem& frame, const QQuickItem& item) {
    for (const QQuickItem* child : item.childItems()) {
        if (!child->isVisible()) continue;
        if (child->inherits("QQuickText") && !child->property("text").toString().isEmpty()) {
            const double height = child->property("contentHeight").toDouble();
            const QRectF place = child->mapRectToItem(&frame, QRectF(QPointF(), child->size()));
            EXPECT_GE(place.center().y() - height / 2, -half) << describe(*child);
            EXPECT_LE(place.center().y() + height / 2, frame.height() + half) << describe(*child);
            constexpr int longMessage = 56; // wants a third line where letters are as small as they get
            const bool isLong = child->property("text").toString().size() > longMessage;
            const int most = frame.objectName() != "snackPanel" ? 100 : isLong ? 3 : 2;
            EXPECT_LE(child->property("lineCount").toInt(), most) << describe(*child);
        }
        expectTextsInside(frame, *child);
    }
}

/// A strip that is scrolled sideways may reach beyond the window; all else stays inside.
bool isScrolledSideways(const QQuickItem& item) {
    for (const QQuickItem* at = &item; at != nullptr; at = at->parentItem()) {
        if (at->inherits("QQuickFlickable") && at->property("contentWidth").toDouble() > at->width() + half)
            return true;
    }
    return false;
}

void expectInside(const Window& window, const QQuickItem& item) {
    if (isScrolledSideways(item)) return;
    const QRectF place = item.mapRectToScene(QRectF(QPointF(), item.size()));
    EXPECT_GE(place.left(), -half) << describe(item);
    EXPECT_LE(place.right(), window.width() + half) << describe(item);
}

/// Texts that stand beside each other in one item keep clear of each other.
void expectApart(const std::vector<const QQuickItem*>& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        for (std::size_t j = i + 1; j < texts.size(); ++j) {
            if (texts[i]->parentItem() != texts[j]->parentItem()) continue;
            const QRectF one(texts[i]->position(), texts[i]->size());
            const QRectF other(texts[j]->position(), texts[j]->size());
            const QRectF shared = one.intersected(other);
            EXPECT_TRUE(shared.width() <= 1 || shared.height() <= 1)
                << describe(*texts[i]) << " and " << describe(*texts[j]);
        }
    }
}

/// A row that a list has made ahead stands outside of the window, and is laid out by the frame after.
bool isAhead(const QQuickItem* item) {
    for (; item != nullptr; item = item->parentItem()) {
        if (item->inherits("ombrivane::view::RowHolder"))
            return !placeOf(*item).intersects(QRectF(QPointF(), item->window()->size()));
    }
    return false;
}

} // namespace

QRectF placeOf(const QQuickItem& item) { return item.mapRectToScene(QRectF(QPointF(), item.size())); }

void expectSound(Window& window) {
    for (const auto& warning : window.takeWarnings())
        ADD_FAILURE() << warning;
    int controls = 0;
    std::vector<const QQuickItem*> texts;
    for (QQuickItem* item : window.visibleItems()) {
        if (!isFocused(*item) || item->opacity() == 0 || isAhead(item)) continue;
        if (item->inherits("QQuickText")) {
            if (item->property("text").toString().isEmpty()) continue;
            expectText(*item);
            expectWholeWords(*item);
            expectInside(window, *item);
            texts.push_back(item);
        }
        if (item->objectName() == "snackPanel") {
            EXPECT_LE(item->width(), 560) << "a message wider than the content";
            expectTextsInside(*item, *item);
        }
        if (!item->inherits("QQuickAbstractButton") && !item->inherits("QQuickTextInput")) continue;
        ++controls;
        expectControl(*item);
        expectTextsInside(*item, *item);
        expectInside(window, *item);
    }
    expectApart(texts);
    // What is under way takes no input.
    if (window.item("progress") == nullptr) {
        EXPECT_GT(controls, 0);
    }
}

} // namespace ombrivane::view
