#include "Inspection.h"
#include "Walk.h"

#include "items/Announcement.h"
#include "items/PictureItem.h"
#include "keyed/Navigator.h"
#include "search/MainViewModel.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>
#include <QQmlProperty>
#include <QTest>

#include <algorithm>
#include <map>
#include <set>

namespace ombrivane::view {
namespace {

std::string top(Window& window) { return std::string(window.session().navigator()->top()->name()); }

/// The name by which assistive technology calls the item.
std::string spoken(Window& window, const char* name) {
    QQuickItem* item = window.item(name);
    const auto* accessible = item != nullptr ? QAccessible::queryAccessibleInterface(item) : nullptr;
    return accessible != nullptr ? accessible->text(QAccessible::Name).toStdString() : "nothing";
}

void keepPicture(Window& window, const QString& name) {
    if (const char* folder = std::getenv("OMBRIVANE_PICTURES"); folder != nullptr)
        window.window().grabWindow().save(QString("%1/%2.png").arg(folder, name));
}

/// Of the form's fields those of these names are marked, in colour and in words.
void expectMarked(Window& window, const std::set<std::string>& names) {
    for (const char* name : {"origin", "destination", "departureDate", "nationality", "travellers"}) {
        const QQuickItem* field = window.item(name);
        ASSERT_NE(field, nullptr) << name;
        const bool expected = names.contains(name);
        const auto* frame = field->property("background").value<QQuickItem*>();
        const QColor border = QQmlProperty::read(frame, "border.color").value<QColor>();
        EXPECT_EQ(border == QColor("#C8372D"), expected) << name;
        const auto marks = field->childItems();
        EXPECT_EQ(std::any_of(marks.begin(),
                              marks.end(),
                              [](const QQuickItem* item) {
                                  return item->isVisible() && item->property("name") == "warningIcon";
                              }),
                  expected)
            << name;
        EXPECT_EQ(spoken(window, name).ends_with(", missing"), expected) << name;
    }
}

TEST(PagesTest, theSearchFormAnswersClicks) {
    const WalkPorts ports;
    Window window;
    window.open();
    ASSERT_TRUE(window.waitForScreen("MainView"));
    ASSERT_TRUE(window.waitFor([&] { return window.item("search") != nullptr; }));
    expectSound(window);

    window.click("search");
    ASSERT_TRUE(window.waitForScreen("AlertView"));
    expectSound(window);
    window.click("dismiss");
    ASSERT_TRUE(window.waitFor([&] { return top(window) == "OmbrivaneView"; }));
    EXPECT_TRUE(window.waitFor([&] { return window.item("origin")->hasActiveFocus(); }));
    expectSound(window);
    expectMarked(window, {"origin", "destination", "departureDate", "nationality"});
    MainViewModel::shared().departCity = "Kathmandu";
    MainViewModel::shared().departCityCode = "KTM";
    expectMarked(window, {"destination", "departureDate", "nationality"});
    keepPicture(window, "form-marked");
    EXPECT_EQ(spoken(window, "origin"), "Enter Origin, Kathmandu");

    window.click("tab2"); // not available: the form stays
    ASSERT_TRUE(window.waitForScreen("AlertView"));
    window.click("dismiss");
    EXPECT_EQ(window.item("returnDate"), nullptr);
    window.click("tab1");
    EXPECT_TRUE(window.waitFor([&] { return window.item("returnDate") != nullptr; }));
    window.click("tab0");
}

bool isInside(Window& window, const QQuickItem& item) {
    return QRectF(QPointF(), window.window().size()).contains(placeOf(item));
}

/// The button is wholly in the window from the start; a field that has the focus is never below it; and a
/// form that has room is seen at once, in two columns where the window lies.
TEST(PagesTest, TheSearchButtonIsInReachAtEverySize) {
    struct Case {
        int width;
        int height;
        double textScale;
        bool seenAtOnce;
        bool twoColumns;
    };
    for (const Case& look : {Case{390, 844, 1, true, false},
                             Case{320, 568, 1, false, false},
                             Case{320, 568, 2, false, false},
                             Case{844, 390, 1, true, true},
                             Case{844, 390, 2, false, true},
                             Case{1024, 768, 1, true, true},
                             Case{839, 1024, 1, true, false}}) {
        SCOPED_TRACE(testing::Message() << look.width << " x " << look.height << " at " << look.textScale);
        const WalkPorts ports;
        Window window(look.width, look.height);
        window.setLook(false, look.textScale);
        window.open();
        ASSERT_TRUE(window.waitForScreen("MainView"));
        window.click("tab1");
        ASSERT_TRUE(window.waitFor([&] { return window.item("returnDate") != nullptr || !look.seenAtOnce; }));
        window.settle();
        expectSound(window);
        const QQuickItem* search = window.item("search");
        ASSERT_NE(search, nullptr);
        EXPECT_TRUE(isInside(window, *search));
        const QQuickItem* origin = window.item("origin");
        ASSERT_NE(origin, nullptr);
        EXPECT_EQ(placeOf(*origin).right() <= placeOf(*search).left(), look.twoColumns);
        for (const char* name : {"destination", "departureDate", "nationality", "travellers"}) {
            if (!look.seenAtOnce) break;
            const QQuickItem* field = window.item(name);
            ASSERT_NE(field, nullptr) << name;
            EXPECT_TRUE(isInside(window, *field)) << name;
            EXPECT_TRUE(look.twoColumns || placeOf(*field).bottom() <= placeOf(*search).top()) << name;
        }
        keepPicture(window, QString("form-%1-%2").arg(look.width).arg(look.textScale));
        // By the keys through the whole form.
        int fields = 0;
        for (int i = 0; i < 20; ++i) {
            QTest::keyClick(&window.window(), Qt::Key_Tab);
            const QQuickItem* focused = window.window().activeFocusItem();
            if (focused == search) break;
            if (focused == nullptr || !focused->property("missing").isValid()) continue;
            ++fields;
            EXPECT_TRUE(window.waitFor([&] {
                return isInside(window, *focused) && !placeOf(*focused).intersects(placeOf(*search));
            })) << focused->objectName().toStdString();
        }
        EXPECT_EQ(fields, 6);
    }
}

/// The field and its screen have one text, whoever writes it.
void expectFieldOf(Window& window, const char* screen, const char* key) {
    Member* text = window.session().navigator()->find(screen)->fields.find(key);
    ASSERT_TRUE(window.waitFor([&] { return window.item("search") != nullptr; }));
    const QQuickItem* field = window.item("search");
    text->write("Ne");
    EXPECT_TRUE(window.waitFor([&] { return field->property("text").toString() == "Ne"; }));
    QTest::keyClick(&window.window(), 'p');
    EXPECT_EQ(text->read(), "Nep");
    window.click("clear");
    EXPECT_EQ(text->read(), "");
    const Member* loading = window.session().navigator()->find(screen)->fields.find("isLoading");
    EXPECT_TRUE(window.waitFor([&] { return loading == nullptr || loading->read() == false; }));
}

TEST(PagesTest, anAirportAndTheTravellersAreChosenByHand) {
    Window window(320, 640);
    window.open();
    ASSERT_TRUE(window.waitForScreen("MainView"));

    window.click("origin");
    ASSERT_TRUE(window.waitForScreen("SelectOriginFlightView"));
    expectFieldOf(window, "SelectOriginFlightView", "originText");
    window.click("row");
    ASSERT_TRUE(window.waitForScreen("SelectDestinationFlightView"));
    expectSound(window);
    window.click("row");
    ASSERT_TRUE(window.waitFor([&] { return top(window) == "OmbrivaneView"; }));
    EXPECT_FALSE(window.item("origin")->property("value").toString().isEmpty());
    EXPECT_FALSE(window.item("destination")->property("value").toString().isEmpty());

    window.click("travellers");
    ASSERT_TRUE(window.waitForScreen("TravellerBottomSheetView"));
    expectSound(window);
    window.click("done");
    ASSERT_TRUE(window.waitFor([&] { return top(window) == "OmbrivaneView"; }));

    window.click("nationality");
    ASSERT_TRUE(window.waitForScreen("NationalityBottomSheetView"));
    expectSound(window);
    expectFieldOf(window, "NationalityBottomSheetView", "nationalityText");
    EXPECT_TRUE(window.session().stage()->back());
    EXPECT_EQ(top(window), "OmbrivaneView");
}

void expectFocusInside(Window& window, const QQuickItem* sheet) {
    const QQuickItem* focused = window.window().activeFocusItem();
    while (focused != nullptr && focused != sheet)
        focused = focused->parentItem();
    EXPECT_NE(focused, nullptr) << "the sheet has not taken the focus";
}

/// The sheet in which the item of this name stands.
QQuickItem* sheetAround(Window& window, const char* name) {
    QQuickItem* item = window.item(name);
    while (item != nullptr && !item->property("beside").isValid())
        item = item->parentItem();
    return item;
}

/// Opened by `control`, a sheet has the focus, stays at a tap on what is blank inside of it, and goes by
/// Escape and by its own control; what had the focus before has it again.
TEST(PagesTest, ASheetTakesTheFocusAndGoesByEscapeAndByItsControlButNotByATapInside) {
    struct Case {
        const char* control;
        const char* screen;
    };
    Window window;
    window.open();
    ASSERT_TRUE(window.waitForScreen("MainView"));
    for (const Case& each : {Case{"travellers", "TravellerBottomSheetView"},
                             Case{"nationality", "NationalityBottomSheetView"}}) {
        SCOPED_TRACE(each.screen);
        for (const bool byEscape : {true, false}) {
            window.click(each.control);
            ASSERT_TRUE(window.waitForScreen(each.screen));
            ASSERT_TRUE(window.waitFor([&] { return window.item("closeSheet") != nullptr; }));
            expectFocusInside(window, sheetAround(window, "closeSheet"));
            const QPointF control = window.item("closeSheet")->mapToScene(QPointF(24, 24));
            const QPoint blank(40, qRound(control.y()));
            QTest::mouseClick(&window.window(), Qt::LeftButton, {}, blank);
            EXPECT_EQ(top(window), each.screen) << "a tap inside closes it";
            if (byEscape)
                QTest::keyClick(&window.window(), Qt::Key_Escape);
            else
                window.click("closeSheet");
            ASSERT_TRUE(window.waitFor([&] { return top(window) == "OmbrivaneView"; }));
            EXPECT_TRUE(window.waitFor([&] { return window.item(each.control)->hasActiveFocus(); }));
        }
    }
}

/// What was last given to assistive technology to be said.
std::vector<std::string> announced(Window& window) {
    std::vector<std::string> texts;
    for (const QQuickItem* item : window.visibleItems()) {
        if (const auto* said = qobject_cast<const Announcement*>(item))
            texts.push_back(said->text().toStdString());
    }
    return texts;
}

void expectKeyboardAt(Window& window, const char* name) {
    const QQuickItem* focused = window.window().activeFocusItem();
    ASSERT_NE(focused, nullptr);
    EXPECT_EQ(focused->objectName(), name);
    const double top = focused->mapToScene(QPointF()).y();
    EXPECT_GT(top, 0);
    const QQuickItem* message = window.item("snackPanel");
    const double end = message != nullptr ? message->mapToScene(QPointF()).y() : window.window().height();
    EXPECT_LT(top + focused->height(), end) << "under the message, or out of the window";
}

/// The item shows, all over, the picture of `file`, whose middle has one colour.
void expectPicture(Window& window, const char* name, const char* file) {
    const QQuickItem* item = window.item(name);
    ASSERT_NE(item, nullptr);
    const QImage picture(file);
    const QColor wanted = picture.pixelColor(picture.rect().center());
    const QPoint centre = item->mapRectToScene(QRectF(QPointF(), item->size())).center().toPoint();
    const QColor shown = window.window().grabWindow().pixelColor(centre);
    constexpr int byCompression = 12;
    EXPECT_NEAR(shown.red(), wanted.red(), byCompression);
    EXPECT_NEAR(shown.green(), wanted.green(), byCompression);
    EXPECT_NEAR(shown.blue(), wanted.blue(), byCompression);
}

/// What a customer cannot see is said: that something is awaited, what is wrong, that the time is short. A
/// form that was not saved leads to the first field that is missing.
TEST(PagesTest, WhatHappensIsSaidAloudAndTheFirstMissingFieldHasTheFocus) {
    const std::string wayOut = "This takes longer than usual. You can wait, or go back.";
    const std::map<std::string, std::string> expected{
        {"awaited", "Fetching the fare rules"},
        {"awaited-long", wayOut},
        {"message", "Please fill the details for emergency contact."},
        {"marked", "Please fill the marked fields."},
        {"undocumented", "Please fill the marked fields."},
        {"documented", ""},
        {"last-minute", "Less than a minute left for confirmation"}};
    for (const double textScale : {1.0, 2.0}) {
        std::size_t looks = 0;
        WalkPorts ports;
        Window window(320, 568);
        window.setLook(false, textScale);
        walk(ports, window, "tests/view/gallery/said.script", [&](const std::string& name) {
            window.settle();
            const auto said = announced(window);
            EXPECT_NE(std::count(said.begin(), said.end(), expected.at(name)), 0) << name;
            EXPECT_EQ(std::count(said.begin(), said.end(), wayOut), name == "awaited-long" ? 1 : 0) << name;
            if (name == "message") {
                EXPECT_EQ(spoken(window, "contactLine"), "Emergency contact, missing");
                EXPECT_TRUE(window.item("contactLine")->hasActiveFocus());
                if (textScale == 1) expectKeyboardAt(window, "contactLine");
            }
            if (name == "marked") expectKeyboardAt(window, "documentNumber");
            if (name == "undocumented") {
                expectKeyboardAt(window, "upload");
                EXPECT_EQ(spoken(window, "upload"), "Upload Document, missing");
            }
            if (name == "documented") {
                EXPECT_EQ(spoken(window, "upload"), "Upload Document");
                expectPicture(window, "picture", "journeys/data/passport.png");
            }
            ++looks;
        });
        EXPECT_EQ(looks, expected.size());
    }
}

int countOf(Window& window, const char* name) {
    const auto items = window.visibleItems();
    return static_cast<int>(std::count_if(
        items.begin(), items.end(), [&](const auto* item) { return item->objectName() == name; }));
}

/// All that assistive technology finds below `place`, on the page in front.
void addSpoken(QAccessibleInterface* place, std::string& words) {
    if (place == nullptr || place->state().invisible) return;
    const auto* item = qobject_cast<QQuickItem*>(place->object());
    if (item != nullptr && !item->isEnabled()) return;
    words += place->text(QAccessible::Name).toStdString() + '\n';
    for (int i = 0; i < place->childCount(); ++i)
        addSpoken(place->child(i), words);
}

/// All texts that can be read on the page in front.
std::string readable(Window& window) {
    std::string words;
    for (const QQuickItem* item : window.visibleItems()) {
        if (!item->isEnabled()) continue;
        double opacity = 1;
        for (const QQuickItem* at = item; at != nullptr; at = at->parentItem())
            opacity *= at->opacity();
        if (opacity > 0) words += item->property("text").toString().toStdString() + '\n';
    }
    return words;
}

/// What is awaited is shown as shapes: no sample of it is read or heard, and what is known already is.
void expectNoSample(Window& window, const char* known) {
    std::string heard;
    addSpoken(QAccessible::queryAccessibleInterface(&window.window()), heard);
    for (const std::string& words : {heard, readable(window)}) {
        for (const char* sample : {"New York", "2022", "46 Kg", "OMB26", "NPR 80,000", "–––"})
            EXPECT_EQ(words.find(sample), std::string::npos) << sample;
        EXPECT_NE(words.find(known), std::string::npos) << known;
    }
}

/// Each leg has its line beside its two airports, and each journey names its cities.
void expectLegsWithLines(Window& window, std::size_t legs) {
    std::vector<QRectF> lines;
    std::vector<QRectF> stops;
    int routes = 0;
    for (const QQuickItem* item : window.visibleItems()) {
        if (item->objectName() == "legLine") lines.push_back(placeOf(*item));
        if (item->objectName() == "legStops") stops.push_back(placeOf(*item));
        if (item->objectName() == "sectionRoute") ++routes;
    }
    EXPECT_EQ(routes, 1);
    ASSERT_EQ(lines.size(), legs);
    ASSERT_EQ(stops.size(), legs);
    for (std::size_t i = 0; i < legs; ++i) {
        EXPECT_GE(lines[i].top(), stops[i].top() - 1);
        EXPECT_LE(lines[i].bottom(), stops[i].bottom() + 1);
    }
}

TEST(PagesTest, WhatIsAwaitedIsShownAsShapesAndEachLegHasItsLine) {
    int looks = 0;
    WalkPorts ports;
    Window window;
    walk(ports, window, "tests/view/gallery/details.script", [&](const std::string& name) {
        SCOPED_TRACE(name);
        window.settle();
        expectSound(window);
        if (name == "rules-awaited") expectNoSample(window, "Rules & Regulations");
        if (name == "details") {
            EXPECT_EQ(countOf(window, "carrierLogo"), 2) << "one for each leg, on the session below";
        }
        if (name == "session-awaited") expectNoSample(window, "Baggage Information");
        if (name == "payment-awaited") expectNoSample(window, "Payment");
        if (name == "payment") expectNoSample(window, "Kathmandu – Doha");
        if (name == "payment-refused") {
            const QQuickItem* otp = window.item("otp");
            EXPECT_TRUE(otp->hasActiveFocus());
            EXPECT_EQ(otp->property("selectedText"), "000000");
            EXPECT_EQ(spoken(window, "otp"), "Enter OTP, Invalid OTP.");
            EXPECT_EQ(window.item("otpProblem")->property("text"), "Invalid OTP.");
        }
        if (name == "ticket-awaited") expectNoSample(window, "Booking Confirmed");
        if (name == "details") expectLegsWithLines(window, 2);
        ++looks;
        keepPicture(window, name.c_str());
    });
    EXPECT_EQ(looks, 7);
}

TEST(PagesTest, APictureThatFailedIsFetchedAgainWhenItAppears) {
    const WalkPorts ports;
    Window window;
    service().setFaults({"/logos/H0.png drop"});
    const std::string logo = service().address() + "/logos/H0.png?shown=nowhere-else";
    PictureItem picture(window.window().contentItem());
    picture.setUrl(QString::fromStdString(logo));
    QTest::qWait(300);
    EXPECT_FALSE(picture.loaded());
    service().setFaults({});
    picture.setVisible(false);
    picture.setVisible(true);
    EXPECT_TRUE(Window::waitFor([&] { return picture.loaded(); }));
}

TEST(PagesTest, theBackControlClosesWithoutAWordToTheHost) {
    Window window;
    window.open();
    ASSERT_TRUE(window.waitForScreen("MainView"));
    window.click("leave");
    EXPECT_TRUE(window.waitFor([&] { return window.closings == 1; }));
    EXPECT_EQ(window.callbacks, 0);
}

TEST(PagesTest, aRefusedTokenReachesTheHostOnceAndCloses) {
    service().setFaults({"/get-token refuse=Not today. times=1"});
    Window window;
    window.open();
    EXPECT_TRUE(window.waitFor([&] { return window.closings == 1; }));
    EXPECT_EQ(window.callbacks, 1);
    service().setFaults({});
}

} // namespace
} // namespace ombrivane::view
