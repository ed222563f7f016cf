#include "Inspection.h"
#include "Walk.h"

#include "appearance/Insets.h"
#include "device/QtMainQueue.h"
#include "keyed/Navigator.h"
#include "parts/Wait.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QTest>
#include <QtTest/qtesttouch.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace ombrivane::view {
namespace {

TEST(PhoneTest, AScreenKeepsItsBarsAndAKeyboardItsPlace) {
    const QRectF screen(0, 0, 390, 844);
    const QRectF free(0, 47, 390, 763); // between a notch and a bar
    struct Case {
        const char* what;
        QRectF view;
        QRectF window;
        Insets kept;
    };
    const Case cases[] = {
        {"all of it", screen, screen, {0, 47, 0, 34, 0}},
        {"below a title of the host", {0, 100, 390, 744}, screen, {0, 0, 0, 34, 0}},
        {"above tabs of the host", {0, 0, 390, 780}, screen, {0, 47, 0, 0, 0}},
        {"a page that waits beside the screen", {390, 0, 390, 844}, screen, {}},
        {"a page that slides in", {195, 0, 390, 844}, screen, {0, 47, 0, 34, 0}},
        {"a window among others", {0, 0, 390, 700}, {0, 0, 390, 700}, {}},
    };
    for (const auto& [what, view, window, kept] : cases)
        EXPECT_EQ(screenInsets(view, window, screen, free), kept) << what;
    EXPECT_EQ(screenInsets({0, 0, 844, 390}, {0, 0, 844, 390}, {0, 0, 844, 390}, {47, 0, 750, 369}),
              (Insets{47, 0, 47, 21, 0}));

    struct Keyboard {
        QRectF place;
        double covers;
    };
    const QRectF view(0, 100, 390, 700);
    for (const auto& [place, covers] : {Keyboard{{0, 510, 390, 334}, 290},
                                        Keyboard{{0, 800, 390, 44}, 0},
                                        Keyboard{{0, 50, 390, 794}, 700},
                                        Keyboard{{}, 0}})
        EXPECT_EQ(keyboardInset(view, place), covers);
}

/// A phone: its window and what it keeps for itself, in the order left, top, right, bottom.
struct Phone {
    const char* name;
    int width;
    int height;
    double textScale;
    const char* language;
    QMarginsF kept;
};
constexpr Phone upright{"upright", 390, 844, 1, "en", {0, 47, 0, 34}};
constexpr Phone lying{"lying", 844, 390, 1, "en", {47, 0, 47, 21}};
constexpr Phone small{"small", 320, 568, 2, "en", {0, 24, 0, 24}};
constexpr Phone mirrored{"mirrored", 844, 390, 1, "ar", {47, 0, 47, 21}};

/// A window on a phone, as its host tells of it.
class PhoneWindow : public Window {
public:
    explicit PhoneWindow(const Phone& phone) : Window(phone.width, phone.height), phone_(phone) {
        setLook(false, phone.textScale);
        session().setLanguage(phone.language);
        view()->setProperty("safeLeft", phone.kept.left());
        view()->setProperty("safeTop", phone.kept.top());
        view()->setProperty("safeRight", phone.kept.right());
        view()->setProperty("safeBottom", phone.kept.bottom());
    }
    QObject* view() { return window().findChild<QObject*>("component"); }
    void setKeyboard(double height) {
        view()->setProperty("keyboardHeight", height);
        settle();
    }
    /// What pages may use.
    QRectF free(double keyboard = 0) {
        return QRectF(QPointF(), window().size())
            .marginsRemoved({phone_.kept.left(),
                             phone_.kept.top(),
                             phone_.kept.right(),
                             std::max(phone_.kept.bottom(), keyboard)});
    }
    void keepPicture(const std::string& name) {
        const char* pictures = std::getenv("OMBRIVANE_PICTURES");
        if (pictures == nullptr) return;
        const QString folder = QString("%1/phone-%2").arg(pictures, phone_.name);
        QDir().mkpath(folder);
        window().grabWindow().save(folder + "/" + QString::fromStdString(name) + ".png");
    }

private:
    Phone phone_;
};

bool isScrolled(const QQuickItem& item) {
    for (const QQuickItem* at = &item; at != nullptr; at = at->parentItem()) {
        // A tall header goes with the page.
        if (at->inherits("QQuickFlickable") || at->property("goesAway").toBool()) return true;
    }
    return false;
}

bool isShown(const QQuickItem& item) {
    double opacity = 1;
    for (const QQuickItem* at = &item; at != nullptr; at = at->parentItem())
        opacity *= at->opacity();
    return item.isEnabled() && item.width() > 0 && opacity > 0;
}

/// Texts and controls of the page in front; what is scrolled may lie anywhere but beside.
void expectInside(Window& window, const QRectF& free) {
    constexpr double half = 0.5;
    const QRectF place = free.adjusted(-half, -half, half, half);
    for (const QQuickItem* item : window.visibleItems()) {
        const bool isText = item->inherits("QQuickText") && !item->property("text").toString().isEmpty();
        if (!isText && !item->inherits("QQuickAbstractButton") && !item->inherits("QQuickTextInput"))
            continue;
        if (!isShown(*item)) continue;
        const QRectF at = placeOf(*item);
        const std::string what =
            item->objectName().toStdString() + " \"" + item->property("text").toString().toStdString() + '"';
        if (item->parentItem()->objectName() != "strip") {
            EXPECT_GE(at.left(), place.left()) << what;
            EXPECT_LE(at.right(), place.right()) << what;
        }
        if (isScrolled(*item)) continue;
        EXPECT_GE(at.top(), place.top()) << what;
        EXPECT_LE(at.bottom(), place.bottom()) << what;
    }
}

/// What lies under the lower bar is the ground of what stands above it.
void expectGround(PhoneWindow& window, const char* look) {
    const QImage picture = window.window().grabWindow();
    const QRectF free = window.free();
    const int middle = picture.width() / 2;
    const QColor above = picture.pixelColor(middle, static_cast<int>(free.bottom()) - 2);
    EXPECT_EQ(picture.pixelColor(middle, picture.height() - 2), above) << look;
}

/// Whatever has the focus and the button that follows stand above the keyboard.
void expectAboveKeyboard(PhoneWindow& window, const char* field, const char* button, double keyboard) {
    SCOPED_TRACE(field);
    QQuickItem* item = nullptr;
    for (QQuickItem* candidate : window.visibleItems()) {
        if (candidate->objectName() == field && candidate->isEnabled()) item = candidate;
    }
    ASSERT_NE(item, nullptr);
    item->forceActiveFocus();
    window.setKeyboard(keyboard);
    window.keepPicture(std::string("keyboard-") + field);
    const QRectF free = window.free(keyboard);
    for (const char* name : {field, button}) {
        if (name == nullptr) continue;
        const QQuickItem* shown = window.item(name);
        ASSERT_NE(shown, nullptr) << name;
        EXPECT_GE(placeOf(*shown).top(), free.top() - 1) << name;
        EXPECT_LE(placeOf(*shown).bottom(), free.bottom() + 1) << name;
    }
    expectInside(window, free);
    window.setKeyboard(0);
}

TEST(PhoneTest, PagesKeepClearOfNotchesBarsAndTheKeyboardWhileTheirGroundRunsUnderThem) {
    for (const Phone& phone : {upright, lying, small, mirrored}) {
        SCOPED_TRACE(phone.name);
        const double keyboard = phone.height * 0.42;
        int looks = 0;
        WalkPorts ports;
        PhoneWindow window(phone);
        walk(ports, window, "tests/view/gallery/phone.script", [&](const std::string& name) {
            SCOPED_TRACE(name);
            ++looks;
            if (name == "awaited")
                dynamic_cast<QtMainQueue&>(*platform().mainQueue).advance(Wait::untilWayOut);
            window.settle();
            window.keepPicture(name);
            expectInside(window, window.free());
            if (name == "sheet" || name == "nationality" || name == "total" || name == "session")
                expectGround(window, name.c_str());
            if (name == "nationality") expectAboveKeyboard(window, "search", nullptr, keyboard);
            if (name == "contact") {
                for (const char* field : {"name", "phoneNumber"})
                    expectAboveKeyboard(window, field, "save", keyboard);
            }
            if (name == "traveller") {
                for (const char* field : {"name", "documentNumber"})
                    expectAboveKeyboard(window, field, "save", keyboard);
            }
            // Large letters, and tall ones on a low page, leave no room for both beneath the clock.
            const bool fits = phone.textScale == 1 && phone.language == upright.language;
            if (name == "payment") expectAboveKeyboard(window, "otp", fits ? "verify" : nullptr, keyboard);
        });
        EXPECT_EQ(looks, 10);
        EXPECT_EQ(window.takeWarnings(), std::vector<std::string>());
    }
}

/// A finger that goes from one place to the other.
void swipe(Window& window, QPoint from, QPoint to) {
    static QPointingDevice* finger = QTest::createTouchDevice();
    constexpr int steps = 8;
    QTest::touchEvent(&window.window(), finger).press(0, from);
    for (int step = 1; step <= steps; ++step) {
        QTest::qWait(10);
        QTest::touchEvent(&window.window(), finger).move(0, from + (to - from) * step / steps);
    }
    QTest::qWait(10);
    QTest::touchEvent(&window.window(), finger).release(0, to);
    QTest::qWait(50);
}

constexpr const char* backAndForth = "wait-screen MainView\n"
                                     "look root\n"
                                     "tap OneWayView.tapTravellers\n"
                                     "look sheet\n"
                                     "tap TravellerBottomSheetView.done\n"
                                     "play journeys/steps/abroad.steps\n"
                                     "play journeys/steps/one-way.steps\n"
                                     "tap FlightListView.rows[0].tap\n"
                                     "faults /verify-flights latency=3000 times=1\n"
                                     "tap continue\n"
                                     "look rules\n"
                                     "wait model.isLoading false\n"
                                     "play journeys/steps/offer.steps\n"
                                     "tap contactLine.tap\n"
                                     "look contact\n"
                                     "play journeys/steps/contact.steps\n"
                                     "tap contact.rows[0].tap\n"
                                     "look wheels\n"
                                     "tap TravellerInformationView.close\n"
                                     "play journeys/steps/traveller-with-passport.steps\n"
                                     "faults /reservation latency=1500 times=1\n"
                                     "tap OWBookingDetailsView.continue\n"
                                     "look reserving\n";

/// Not at the root, not over a sheet or wheels, not while it reserves.
TEST(PhoneTest, AFingerFromTheLeadingEdgeGoesBackWhereThePageItselfDoes) {
    for (const bool fromRight : {false, true}) {
        SCOPED_TRACE(fromRight);
        WalkPorts ports;
        PhoneWindow window(fromRight ? mirrored : upright);
        window.view()->setProperty("reducedMotion", fromRight);
        const int width = window.width();
        const auto at = [&](int distance) { return QPoint(fromRight ? width - distance : distance, 200); };
        const auto top = [&] { return std::string(window.session().navigator()->top()->name()); };
        const auto expectGone = [&](const char* next) {
            swipe(window, at(8), at(250));
            EXPECT_TRUE(Window::waitFor([&] { return top() == next; })) << top();
        };
        std::istringstream script(backAndForth);
        int looks = 0;
        walk(ports, window, script, [&](const std::string& name) {
            SCOPED_TRACE(name);
            ++looks;
            window.settle();
            if (name == "rules") return expectGone("FlightListView");
            const std::string before = top();
            if (name == "contact") {
                QTest::qWait(300);
                const QRectF place = placeOf(*window.item("save"));
                swipe(window, at(8), at(60));
                EXPECT_EQ(top(), before) << "a short way";
                swipe(window, at(120), at(350));
                EXPECT_EQ(top(), before) << "not from the edge";
                swipe(window, QPoint(fromRight ? 8 : width - 8, 200), at(100));
                EXPECT_EQ(top(), before) << "the other edge";
                QTest::qWait(300);
                EXPECT_EQ(placeOf(*window.item("save")), place);
                return expectGone("OWBookingDetailsView");
            }
            if (name == "wheels") {
                for (QQuickItem* item : window.visibleItems()) {
                    if (item->objectName() == "dateOfBirth") QMetaObject::invokeMethod(item, "clicked");
                }
                ASSERT_TRUE(Window::waitFor([&] { return window.item("year") != nullptr; }));
            }
            swipe(window, at(8), at(250));
            QTest::qWait(200);
            EXPECT_EQ(top(), before);
        });
        service().setFaults({});
        EXPECT_EQ(looks, 6);
        EXPECT_EQ(window.takeWarnings(), std::vector<std::string>());
    }
}

} // namespace
} // namespace ombrivane::view
