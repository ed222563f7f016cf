#include "network/Line.h"
#include "network/TlsServer.h"
#include "platform/StandingConnections.h"

#include <curl/curl.h>
#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>

#include <unistd.h>

namespace ombrivane::network {
namespace {

using std::chrono::milliseconds;

/// Answers one request.
void answersOne(sandbox::TlsConnection& connection) {
    if (readRequest(connection)) connection.write("HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\n{}");
}

HttpRequest to(const std::string& url) {
    HttpRequest request;
    request.url = url;
    return request;
}

HttpAnswer get(CurlNetwork& network, const std::string& url) {
    return awaited([&](HttpCompletion completion) { network.send(to(url), std::move(completion)); });
}

bool comesTrue(const std::function<bool()>& condition) {
    for (int i = 0; i < 500; ++i) {
        if (condition()) return true;
        std::this_thread::sleep_for(milliseconds(10));
    }
    return false;
}

TEST(OpenedAheadTest, ARequestTakesUpTheConnectionAndTheSessionOfTheOneBefore) {
    SSL_CTX* tls = nullptr;
    TlsServer server(answersOne, [&](SSL_CTX* context) { tls = context; });
    CurlNetwork network({.caFile = server.caFile()});
    for (int request = 1; request <= 3; ++request) {
        network.expect(server.url());
        ASSERT_TRUE(comesTrue([&] { return server.connections() == request; }));
        EXPECT_EQ(get(network, server.url()).data, "{}");
        EXPECT_EQ(server.connections(), request) << "over the one that stood";
    }
    EXPECT_EQ(SSL_CTX_sess_hits(tls), 2);
}

TEST(OpenedAheadTest, AsOneIsTakenTheNextIsOpened) {
    TlsServer server(answersOne);
    CurlNetwork network({.caFile = server.caFile()});
    network.expect(server.url());
    ASSERT_TRUE(comesTrue([&] { return server.connections() == 1; }));
    // From the network's own thread, so that it finds both at once.
    const HttpAnswer second = awaited([&](HttpCompletion completion) {
        network.send(to(server.url()), [&network, &server, completion](const HttpAnswer& /*first*/) {
            network.send(to(server.url()), completion);
            network.expect(server.url());
        });
        network.expect(server.url());
    });
    EXPECT_EQ(second.data, "{}");
    EXPECT_TRUE(comesTrue([&] { return server.connections() == 3; }))
        << "one for whatever comes after the second";
}

TEST(OpenedAheadTest, AConnectionThatDiesBeforeTlsStandsIsReplacedByAnother) {
    static std::atomic<int> greeted;
    greeted = 0;
    TlsServer server(answersOne, [](SSL_CTX* context) {
        SSL_CTX_set_client_hello_cb(
            context,
            [](SSL*, int*, void*) {
                return ++greeted == 1 ? SSL_CLIENT_HELLO_ERROR : SSL_CLIENT_HELLO_SUCCESS;
            },
            nullptr);
    });
    CurlNetwork network({.caFile = server.caFile()});
    network.expect(server.url());
    ASSERT_TRUE(comesTrue([&] { return server.connections() == 1; }));
    EXPECT_EQ(get(network, server.url()).data, "{}");
    EXPECT_EQ(server.connections(), 2);
    greeted = 0;
    EXPECT_TRUE(get(network, server.url()).error) << "a connection of the request's own is tried once";
}

/// Connections without a network around them, and its loop by hand.
class StandingTest : public testing::Test {
protected:
    ~StandingTest() override {
        standing.reset();
        curl_multi_cleanup(multi);
    }

    /// As the network's thread does.
    bool turn() {
        int count = 0;
        curl_multi_perform(multi, &count);
        while (const CURLMsg* message = curl_multi_info_read(multi, &count))
            EXPECT_TRUE(standing->opened(message->easy_handle, message->data.result));
        return true;
    }
    int taken(const std::string& url) {
        int socket = -1;
        comesTrue([&] { return turn() && (socket = standing->take(url)) >= 0; });
        return socket;
    }

    CURLM* multi = curl_multi_init();
    std::unique_ptr<StandingConnections> standing =
        std::make_unique<StandingConnections>(multi, milliseconds(400));
    TlsServer server{saysNothing};
    TlsServer other{saysNothing};
};

TEST_F(StandingTest, OneStandsForEachServerAndIsTakenOnce) {
    for (int i = 0; i < 5; ++i) {
        standing->open(server.url());
        standing->open(other.url());
    }
    const int socket = taken(server.url());
    ASSERT_GE(socket, 0);
    ::close(socket);
    turn();
    EXPECT_EQ(standing->take(server.url()), -1);
    EXPECT_EQ(standing->take("https://localhost:1/"), -1);
    EXPECT_EQ(server.connections() + other.connections(), 2);
}

TEST_F(StandingTest, TwoStandAtMostAndNotForLong) {
    TlsServer third(saysNothing);
    for (const TlsServer* one : {&server, &other, &third})
        standing->open(one->url());
    ASSERT_TRUE(comesTrue([&] { return turn() && server.connections() + other.connections() == 2; }));
    EXPECT_EQ(third.connections(), 0);
    EXPECT_TRUE(comesTrue([&] {
        turn();
        standing->closeOld();
        return standing->empty();
    }));
}

TEST_F(StandingTest, WhatItsServerHasLeftOrNeverHeldIsNotHandedOut) {
    std::string url;
    {
        TlsServer leaving(saysNothing);
        url = leaving.url();
        standing->open(url);
        ASSERT_TRUE(comesTrue([&] { return turn() && leaving.connections() == 1; }));
        for (int i = 0; i < 5; ++i)
            turn();
    }
    EXPECT_EQ(standing->take(url), -1);
    standing->open(url); // nobody listens any more
    EXPECT_TRUE(comesTrue([&] { return turn() && standing->empty(); }));
}

} // namespace
} // namespace ombrivane::network
