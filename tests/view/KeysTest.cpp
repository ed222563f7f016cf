#include "Inspection.h"
#include "Walk.h"

#include <gtest/gtest.h>

#include <QMetaEnum>
#include <QTest>

#include <algorithm>
#include <set>

namespace ombrivane::view {
namespace {

/// The list around an item, nullptr for none.
const QQuickItem* listAround(const QQuickItem* item) {
    while (item != nullptr && !item->inherits("QQuickItemView"))
        item = item->parentItem();
    return item;
}

/// A customer with a keyboard and nothing else.
class Keyboard {
public:
    explicit Keyboard(Window& window) : window_(window) {}

    /// What has the focus, a wheel and not its entry.
    const QQuickItem* focused() const {
        const QQuickItem* item = window_.window().activeFocusItem();
        while (item != nullptr && item->parentItem() != nullptr && !item->activeFocusOnTab())
            item = item->parentItem();
        return item;
    }
    std::string place() const { return focused()->objectName().toStdString(); }

    /// Presses a key by its name; what has the focus then is in the window and has the ring around it.
    void press(const std::string& key) {
        const int code = QMetaEnum::fromType<Qt::Key>().keyToValue(("Key_" + key).c_str());
        const auto shift = key == "Backtab" ? Qt::ShiftModifier : Qt::NoModifier;
        QTest::keyClick(&window_.window(), static_cast<Qt::Key>(code), shift);
        expectRingInView(key);
    }
    /// Goes with Tab to the next control of a name. A list is one stop on the way.
    void go(const std::string& name) {
        ASSERT_TRUE(window_.waitFor([this] { return window_.isMade(); }));
        std::vector<std::string> stops{place()};
        const QQuickItem* list = listAround(focused());
        do {
            press("Tab");
            if (listAround(focused()) == list && list != nullptr && list->objectName() != "offers")
                ADD_FAILURE() << "two stops in the list " << list->objectName().toStdString();
            list = listAround(focused());
            stops.push_back(place());
        } while (place() != name && stops.size() < 40);
        ASSERT_EQ(place(), name) << ::testing::PrintToString(stops);
        order_.insert(order_.end(), stops.begin(), stops.end());
    }
    void type(const std::string& text) {
        window_.settle(); // a page that opens takes the keys with its first frame
        ASSERT_TRUE(focused()->inherits("QQuickTextInput")) << place();
        for (const char letter : text) {
            QTest::keyClick(&window_.window(), letter);
            QTest::qWait(60); // as fast as hands are: each letter asks the service
        }
    }
    void expectLast() {
        const QQuickItem* list = listAround(focused());
        ASSERT_NE(list, nullptr) << place();
        EXPECT_GT(list->property("count").toInt(), 1);
        EXPECT_EQ(list->property("currentIndex").toInt(), list->property("count").toInt() - 1);
    }
    /// All controls where the keys have been, in their order.
    const std::vector<std::string>& order() const { return order_; }

private:
    void expectRingInView(const std::string& key) {
        const QRectF inside(QPointF(), window_.window().size());
        const auto isRinged = [&] {
            if (focused() == nullptr || !focused()->activeFocusOnTab()) return false;
            const QQuickItem* ring = window_.item("focusRing");
            if (ring == nullptr || !inside.contains(placeOf(*focused()))) return false;
            return !placeOf(*ring).intersected(placeOf(*focused())).isEmpty();
        };
        QTest::qWait(20);
        const bool opens =
            key == "Return" || key == "Space"; // another page, which may have no control at first
        EXPECT_TRUE(opens || window_.waitFor(isRinged))
            << key << " to " << place() << " at " << ::testing::PrintToString(placeOf(*focused()).top());
        if (opens && focused() != nullptr) QTest::qWait(50);
    }

    Window& window_;
    std::vector<std::string> order_;
};

bool areInOrder(const std::vector<std::string>& all, const std::vector<std::string>& names) {
    auto from = all.begin();
    for (const auto& name : names) {
        from = std::find(from, all.end(), name);
        if (from == all.end()) return false;
    }
    return true;
}

TEST(KeysTest, ABookingIsMadeByKeysAloneAndWhatHasTheFocusIsInSight) {
    service().reset();
    for (const auto& [width, height] : {std::pair(390, 844), std::pair(320, 568)}) {
        SCOPED_TRACE(width);
        WalkPorts ports;
        Window window(width, height);
        Keyboard keyboard(window);
        walk(ports,
             window,
             "tests/view/gallery/keys.script",
             [&](const std::string&) { EXPECT_TRUE(window.waitFor([&] { return window.callbacks > 0; })); },
             {{"go", [&](const std::string& name) { keyboard.go(name); }},
              {"press", [&](const std::string& key) { keyboard.press(key); }},
              {"type", [&](const std::string& text) { keyboard.type(text); }},
              {"at", [&](const std::string& name) { EXPECT_EQ(keyboard.place(), name); }},
              {"last", [&](const std::string&) { keyboard.expectLast(); }}});
        EXPECT_TRUE(areInOrder(keyboard.order(), {"back", "edit", "previous", "next", "offer", "go"}))
            << ::testing::PrintToString(keyboard.order());
        EXPECT_EQ(window.takeWarnings(), std::vector<std::string>());
    }
}

} // namespace
} // namespace ombrivane::view
