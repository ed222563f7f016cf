#include "Walk.h"

#include "keyed/Navigator.h"
#include "session/Reservations.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QQmlComponent>
#include <QTest>

#include <sstream>

namespace ombrivane::view {
namespace {

/// A wallet in QML alone: a page with the component, which may go at any time, and receipts, which stay.
constexpr const char* wallet = R"(
import QtQuick
import Ombrivane
Window {
    id: wallet
    property bool pageIsShown: true
    property bool listens: false
    property var receipts: []
    property string signalName
    property string reaction
    function hear(name, component) {
        if (name !== signalName) return
        signalName = ""
        if (reaction === "drop") component.drop()
        if (reaction === "open") component.open()
        if (reaction === "destroy") pageIsShown = false
    }
    visible: true
    Loader {
        anchors.fill: parent
        active: wallet.pageIsShown
        sourceComponent: OmbrivaneView {
            id: component
            clientId: "wallet"; clientSecret: "wallet-secret"; reducedMotion: true
            onFinished: wallet.hear("told", component)
            onFailed: wallet.hear("told", component)
            onClosed: wallet.hear("closed", component)
        }
    }
    Loader {
        active: wallet.listens
        sourceComponent: Reservations { onArrived: wallet.receipts = wallet.receipts.concat([take()]) }
    }
})";

constexpr const char* booking = "play journeys/steps/booking-abroad.steps\n"
                                "faults /reservation latency=400 times=1\n"
                                "tap OWBookingDetailsView.continue\n"
                                "look away";

/// The page goes while the reservation is under way; a wallet that listens hears of it, another asks later.
TEST(HostTest, AReservationReachesAQmlWalletWhosePageHasGone) {
    for (const bool listens : {true, false}) {
        SCOPED_TRACE(listens);
        WalkPorts ports;
        Window window(wallet);
        window.window().setProperty("listens", listens);
        std::istringstream script(booking);
        walk(ports, window, script, [&](const std::string&) {
            window.window().setProperty("pageIsShown", false);
            EXPECT_TRUE(Window::waitFor([&] { return !window.hasSession(); }));
        });
        service().setFaults({});
        const auto receipts = [&] { return window.window().property("receipts").toStringList(); };
        EXPECT_TRUE(receipts().isEmpty());
        if (!listens) {
            EXPECT_TRUE(Window::waitFor([] { return Reservations::shared().pending() == 1; }));
            window.window().setProperty("listens", true);
        }
        EXPECT_TRUE(Window::waitFor([&] { return !receipts().isEmpty(); }));
        ASSERT_EQ(receipts().size(), 1);
        EXPECT_TRUE(Json::parse(receipts().constFirst().toStdString()).contains("bookingSummary"));
        EXPECT_EQ(Reservations::shared().pending(), 0U);
        EXPECT_EQ(window.takeWarnings(), std::vector<std::string>());
    }
}

/// What makes the component speak, and whether the host acts when it is told or when it is asked to close.
struct Event {
    const char* name;
    const char* signal;
    bool online;
};
constexpr Event events[] = {{"no connection", "told", false},
                            {"no connection, closing", "closed", false},
                            {"refused", "told", true},
                            {"refused, closing", "closed", true}};
constexpr const char* reactions[] = {"drop", "open", "destroy"};

void make(const Event& event, const WalkPorts& ports) {
    ports.reachability->say(event.online ? reachableFlag : 0);
    service().setFaults({"/get-token refuse=No. times=1"});
}

/// A fresh opening after what happened.
void expectUsable(OmbrivaneSession& session, const WalkPorts& ports) {
    service().setFaults({});
    ports.reachability->say(reachableFlag);
    session.open();
    EXPECT_TRUE(Window::waitFor([&] { return session.navigator()->find("MainView") != nullptr; }));
}

/// The wallet has heard its signal, and what it did inside of it has been done.
void expectReaction(Window& window, const char* reaction, const WalkPorts& ports) {
    EXPECT_TRUE(Window::waitFor([&] { return window.window().property("signalName").toString().isEmpty(); }));
    QTest::qWait(20);
    if (std::string_view(reaction) == "destroy") {
        EXPECT_TRUE(Window::waitFor([&] { return !window.hasSession(); }));
    } else {
        expectUsable(window.session(), ports);
    }
}

TEST(HostTest, AQmlHostMayDropDestroyAndOpenAgainInsideOfEverySignal) {
    for (const Event& event : events) {
        for (const char* reaction : reactions) {
            SCOPED_TRACE(std::string(event.name) + ": " + reaction);
            WalkPorts ports;
            Window window(wallet);
            window.window().setProperty("signalName", event.signal);
            window.window().setProperty("reaction", reaction);
            make(event, ports);
            window.open();
            expectReaction(window, reaction, ports);
            EXPECT_EQ(window.takeWarnings(), std::vector<std::string>());
        }
    }
    service().setFaults({});
}

TEST(HostTest, AQmlHostMayDropDestroyAndOpenAgainWhenAReservationIsHandedOver) {
    for (const char* reaction : reactions) {
        SCOPED_TRACE(reaction);
        WalkPorts ports;
        Window window(wallet);
        window.window().setProperty("signalName", "told");
        window.window().setProperty("reaction", reaction);
        std::istringstream script("play journeys/steps/booking-abroad.steps\n"
                                  "tap OWBookingDetailsView.continue");
        walk(ports, window, script, nullptr);
        expectReaction(window, reaction, ports);
        EXPECT_EQ(Reservations::shared().pending(), 1U);
        EXPECT_EQ(window.takeWarnings(), std::vector<std::string>());
    }
}

/// Hears the signals of the QML item, which have no C++ name.
class Ear : public QObject {
    Q_OBJECT
public:
    std::function<void(const char* signal)> hear;

public slots:
    void told() { hear("told"); }
    void closed() { hear("closed"); }
};

/// A host in C++ that owns the item, and deletes it.
class CppHost {
public:
    enum Kind { callback, sessionSignals, itemSignals };

    CppHost(Kind kind, const Event& event, const char* reaction) {
        ear_.hear = [this, kind, event, reaction](const char* signal) {
            if (std::string_view(signal) != event.signal || reacted) return;
            reacted = true;
            if (std::string_view(reaction) == "drop") session->drop();
            if (std::string_view(reaction) == "open") session->open();
            if (std::string_view(reaction) != "destroy") return;
            // Qt allows no QML object to be deleted inside of a handler of its own.
            if (kind == itemSignals) item_.release()->deleteLater();
            item_.reset();
        };
        QQmlComponent component(&engine_, QUrl("qrc:/qt-project.org/imports/Ombrivane/OmbrivaneView.qml"));
        item_.reset(component.create());
        session = item_->findChild<OmbrivaneSession*>();
        session->clientId = "wallet";
        session->clientSecret = "wallet-secret";
        if (kind == callback) session->setCallback([this](const auto&, const auto&) { ear_.told(); });
        if (kind == itemSignals) {
            QObject::connect(item_.get(), SIGNAL(failed(QString, QString, int, int)), &ear_, SLOT(told()));
            QObject::connect(item_.get(), SIGNAL(closed()), &ear_, SLOT(closed()));
        } else {
            QObject::connect(session, &OmbrivaneSession::failed, &ear_, &Ear::told);
            QObject::connect(session, &OmbrivaneSession::closed, &ear_, &Ear::closed);
        }
    }

    bool reacted = false;
    QPointer<OmbrivaneSession> session;

private:
    Ear ear_;
    QQmlEngine engine_;
    std::unique_ptr<QObject> item_;
};

TEST(HostTest, ACppHostMayDropDestroyAndOpenAgainInsideOfTheCallbackAndEverySignal) {
    for (const auto kind : {CppHost::callback, CppHost::sessionSignals, CppHost::itemSignals}) {
        for (const Event& event : events) {
            // Told of a refusal on the thread of the network, a host moves to its own before it acts.
            if (kind == CppHost::callback && event.online && std::string_view(event.signal) == "told")
                continue;
            for (const char* reaction : reactions) {
                SCOPED_TRACE(std::to_string(kind) + " " + event.name + ": " + reaction);
                WalkPorts ports;
                CppHost host(kind, event, reaction);
                make(event, ports);
                host.session->open();
                EXPECT_TRUE(Window::waitFor([&] { return host.reacted; }));
                QTest::qWait(20);
                EXPECT_EQ(host.session.isNull(), std::string_view(reaction) == "destroy");
                if (host.session) expectUsable(*host.session, ports);
            }
        }
    }
    service().setFaults({});
}

TEST(HostTest, AbsentAndEmptyAreToldApart) {
    QQmlEngine engine;
    const auto given = [&engine](const char* properties) {
        QQmlComponent component(&engine);
        component.setData(QByteArray("import Ombrivane\nOmbrivaneView {") + properties + "}",
                          QUrl("qrc:/test/Given.qml"));
        return std::unique_ptr<QObject>(component.create());
    };
    const auto sessionOf = [](const std::unique_ptr<QObject>& item) -> OmbrivaneSession& {
        return *item->findChild<OmbrivaneSession*>();
    };
    const auto absent =
        given("property var nothing\n"
              "userType: nothing; phone: nothing; environment: nothing; walletBalance: nothing");
    ASSERT_NE(absent, nullptr);
    const auto untouched = given("");
    for (const auto* item : {&untouched, &absent}) {
        const auto& session = sessionOf(*item);
        EXPECT_FALSE(session.userType || session.phone || session.environment || session.walletBalance);
    }
    const auto empty = given("userType: ''; phone: ''; environment: ''; walletBalance: 0");
    const auto& session = sessionOf(empty);
    EXPECT_EQ(session.userType, QString(""));
    EXPECT_EQ(session.phone, QString(""));
    EXPECT_EQ(session.environment, QString(""));
    EXPECT_EQ(session.walletBalance, 0);
    // A binding that turns undefined takes the value back.
    const auto bound = given("property var known: 'x'; phone: known; walletBalance: known ? 7 : undefined");
    EXPECT_EQ(sessionOf(bound).phone, QString("x"));
    EXPECT_EQ(sessionOf(bound).walletBalance, 7);
    bound->setProperty("known", QVariant());
    EXPECT_EQ(sessionOf(bound).phone, std::nullopt);
    EXPECT_EQ(sessionOf(bound).walletBalance, std::nullopt);
}

TEST(HostTest, TheImportBringsTheNamesOfTheWalletsSideAndNoOther) {
    QQmlEngine engine;
    const auto isKnown = [&engine](const QByteArray& line) {
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nimport Ombrivane\nItem {" + line + "}", QUrl());
        return component.isReady();
    };
    for (const char* name : {"OmbrivaneView", "OmbrivaneSession", "Appearance", "Reservations", "HostEvents"})
        EXPECT_TRUE(isKnown(QByteArray("Component {") + name + " {} }")) << name;
    EXPECT_TRUE(isKnown("property int kind: ErrorKind.TimedOut"));

    QFile table(":/qt-project.org/imports/Ombrivane/Private/qmldir");
    ASSERT_TRUE(table.open(QFile::ReadOnly));
    QByteArrayList names{"Theme", "ThemedScope", "Words", "StageModel", "Icon", "Picture", "Announcement"};
    for (const auto& line : table.readAll().split('\n')) {
        const auto words = line.split(' ');
        if (words.size() == 3 && words.at(2).endsWith(".qml")) names.append(words.at(0));
    }
    EXPECT_GT(names.size(), 80);
    for (const auto& name : names)
        EXPECT_FALSE(isKnown("Component {" + name + " {} }")) << name.toStdString();
}

TEST(HostTest, AWalletInQmlIsToldOfWhatHappensAndOfErrorsByTheirKind) {
    WalkPorts ports;
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(R"(
import QtQuick
import Ombrivane
Item {
    property var events: []
    property var calls: []
    property int kind: -1
    property bool isRefusal: kind === ErrorKind.CredentialsRefused
    property alias view: view
    HostEvents {
        onHappened: event => events = events.concat(event.event + " " + (event.closedBy ?? event.screen ?? ""))
        onCallEnded: call => calls = calls.concat(call.endpoint + " " + call.status + " " + call.error)
    }
    OmbrivaneView {
        id: view
        clientId: "wallet"; clientSecret: "wrong"
        onFailed: (message, domain, code, kind) => parent.kind = kind
        Component.onCompleted: open()
    }
})",
                      QUrl());
    const std::unique_ptr<QObject> item(component.create());
    ASSERT_NE(item, nullptr) << component.errorString().toStdString();
    ASSERT_TRUE(QTest::qWaitFor([&] { return item->property("kind").toInt() >= 0; }, 20000));
    EXPECT_TRUE(item->property("isRefusal").toBool()) << item->property("kind").toInt();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !item->property("calls").toList().isEmpty(); }, 20000));
    EXPECT_EQ(item->property("events").toStringList(),
              (QStringList{"opened ", "screenShown OmbrivaneView", "closed error"}));
    EXPECT_EQ(item->property("calls").toStringList(), QStringList{"/get-token 401 credentialsRefused"});
}

} // namespace
} // namespace ombrivane::view

#include "HostTest.moc"
