#include "Walk.h"

#include "booking/RulesAndRegulationView.h"
#include "keyed/Navigator.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QTcpServer>
#include <QTemporaryFile>

#include <sys/inotify.h>
#include <unistd.h>

#include <cerrno>

namespace ombrivane::view {
namespace {

/// Tells whether a file was opened since this was made.
class OpeningWatch {
public:
    explicit OpeningWatch(const QString& file) {
        EXPECT_GE(inotify_add_watch(descriptor_, file.toLocal8Bit().constData(), IN_OPEN), 0);
    }
    OpeningWatch(const OpeningWatch&) = delete;
    OpeningWatch& operator=(const OpeningWatch&) = delete;
    ~OpeningWatch() { close(descriptor_); }

    bool wasOpened() const {
        char event[sizeof(inotify_event) + 256];
        return read(descriptor_, event, sizeof event) > 0;
    }

private:
    int descriptor_ = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
};

/// Fare rules that name an address and a file wherever HTML can.
std::string prying(const std::string& address, const std::string& file) {
    std::string html = "<p>Fares</p>";
    for (const std::string& place : {address, file}) {
        html += "<img src='" + place + "'><link rel='stylesheet' href='" + place + "'><script src='" + place +
                "'></script><iframe src='" + place + "'></iframe><object data='" + place +
                "'></object><body background='" + place + "'><style>@import url(" + place +
                ");p{background:url(" + place + ")}</style><p style=\"background:url('" + place +
                "')\">are firm.</p>";
    }
    return html;
}

TEST(RulesPageTest, NothingIsFetchedNoFileIsOpenedAndEachTextIsMeasured) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    const OpeningWatch watch(file.fileName());

    WalkPorts ports;
    Window window;
    walk(ports, window, "tests/view/gallery/rules.script", [&](const std::string&) {
        const auto rules = std::dynamic_pointer_cast<RulesAndRegulationView>(
            window.session().navigator()->find("RulesAndRegulationView"));
        ASSERT_NE(rules, nullptr);
        rules->htmlText = prying("http://127.0.0.1:" + std::to_string(server.serverPort()) + "/x.png",
                                 "file://" + file.fileName().toStdString());
        window.settle();
        EXPECT_EQ(rules->paragraphs.get().size(), 3U);
        const double few = rules->size;
        EXPECT_GT(few, 0);
        rules->htmlText = rules->htmlText.get() + "<p>More.</p><p>And more.</p>";
        window.settle();
        EXPECT_GT(rules->size.get(), few);
    });
    EXPECT_FALSE(server.hasPendingConnections());
    EXPECT_FALSE(watch.wasOpened());
    EXPECT_TRUE(QFile(file.fileName()).open(QIODevice::ReadOnly));
    EXPECT_TRUE(watch.wasOpened()) << "the watch is blind";
}

TEST(RulesPageTest, AnUnderlinedWordIsUnderlinedAndAListItemHasItsBullet) {
    WalkPorts ports;
    Window window;
    walk(ports, window, "tests/view/gallery/rules.script", [&](const std::string&) {
        const auto rules = std::dynamic_pointer_cast<RulesAndRegulationView>(
            window.session().navigator()->find("RulesAndRegulationView"));
        ASSERT_NE(rules, nullptr);
        const auto drawn = [&](const char* html) {
            rules->htmlText = html;
            window.settle();
            return window.window().grabWindow();
        };
        const QImage plain = drawn("<p>One two three</p>");
        EXPECT_EQ(window.item("bullet"), nullptr);
        const QImage marked = drawn("<p>One <u>two</u> three</p>");
        QRect differences;
        for (int y = 0; y < plain.height(); ++y) {
            for (int x = 0; x < plain.width(); ++x) {
                if (plain.pixel(x, y) != marked.pixel(x, y)) differences |= QRect(x, y, 1, 1);
            }
        }
        QFont font("Fira Sans");
        font.setPixelSize(16);
        EXPECT_NEAR(differences.width(), QFontMetricsF(font).horizontalAdvance("two"), 2);
        EXPECT_NEAR(differences.left(), 16 + QFontMetricsF(font).horizontalAdvance("One "), 2);
        EXPECT_LE(differences.height(), 3);
        drawn("<ul><li>One</li></ul>");
        EXPECT_NE(window.item("bullet"), nullptr);
    });
}

} // namespace
} // namespace ombrivane::view
