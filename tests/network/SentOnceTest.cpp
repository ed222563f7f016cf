#include "network/Line.h"

#include <curl/curl.h>
#include <gtest/gtest.h>

#include <tuple>

namespace ombrivane::network {
namespace {

/// What the server does, and whether the connection was opened ahead.
class SentOnceTest : public testing::TestWithParam<std::tuple<FaultCase, bool>> {};

TEST_P(SentOnceTest, AReservationReachesTheServerOnce) {
    // The first request leaves a connection that the server would keep open: a second one over it would be
    // repeated by libcurl when the server closes without an answer. It leaves a TLS session, too.
    const auto& [fault, openedAhead] = GetParam();
    Line line({std::string("/reservation ") + fault.fault + " after=1"});
    ASSERT_TRUE(line.send(line.reservation()).data);
    if (openedAhead) {
        line.network().expect(line.url("/"));
        ASSERT_TRUE(line.serverHasAccepted(2));
    }

    const HttpAnswer answer = line.send(line.reservation());
    EXPECT_EQ(answer.error ? answer.error->code : 0, fault.code);
    EXPECT_NE(answer.error.has_value(), answer.data.has_value());
    if (answer.error) {
        EXPECT_EQ(answer.error->domain, "Network");
    }

    line.destroyNetwork();
    line.server().stop();
    ASSERT_EQ(line.server().requests().size(), 2U);
    EXPECT_EQ(line.server().requests().back().body, passengers);
    EXPECT_EQ(line.server().counters().connections, 2U);
}

INSTANTIATE_TEST_SUITE_P(WhateverTheServerDoes, SentOnceTest,
                         testing::Combine(testing::Values(FaultCase{"drop", CURLE_GOT_NOTHING},
                                                          FaultCase{"reset", CURLE_RECV_ERROR},
                                                          FaultCase{"half-status-line", CURLE_GOT_NOTHING},
                                                          FaultCase{"short", CURLE_PARTIAL_FILE},
                                                          FaultCase{"silence", CURLE_OPERATION_TIMEDOUT},
                                                          FaultCase{"status=503", 0},
                                                          FaultCase{"status=408", 0},
                                                          FaultCase{"status=417", 0},
                                                          FaultCase{"status=401", 0}, FaultCase{"empty", 0}),
                                          testing::Bool()));

TEST(RequestTest, ALargeBodyAndAnEmptyOneTravelAsTheyAre) {
    Line line;
    HttpRequest upload = line.reservation();
    upload.body = std::string(3'000'000, '\0') + "\r\n--end";
    EXPECT_TRUE(line.send(upload).data);
    HttpRequest empty = line.reservation();
    empty.body.reset();
    EXPECT_TRUE(line.send(empty).data);

    const auto requests = line.server().requests();
    ASSERT_EQ(requests.size(), 2U);
    EXPECT_TRUE(requests[0].body == *upload.body);
    EXPECT_EQ(requests[1].body, "");
    for (const auto& request : requests) {
        EXPECT_EQ(request.method, "POST");
        int tokens = 0;
        for (const auto& header : request.headers) {
            EXPECT_FALSE(sandbox::equalIgnoringCase(header.name, "Expect")) << "waits for a permission";
            if (sandbox::equalIgnoringCase(header.name, "Authorization")) {
                ++tokens;
                EXPECT_EQ(header.value, std::string("Bearer ") + accessToken);
            }
        }
        EXPECT_EQ(tokens, 1);
    }
}

TEST(RequestTest, ARedirectIsNotFollowedWithPassengersAndToken) {
    Line elsewhere;
    for (const std::string& target :
         {elsewhere.url("/api/b2b/v2/reservation"), std::string("/api/b2b/v2/reservation")}) {
        SCOPED_TRACE(target);
        Line line({"/reservation redirect=" + target});
        const HttpAnswer answer = line.send(line.reservation());
        EXPECT_EQ(answer.data, "");
        EXPECT_FALSE(answer.error);
        EXPECT_EQ(line.server().requests().size(), 1U);
    }
    EXPECT_EQ(elsewhere.server().counters().connections, 0U);
}

} // namespace
} // namespace ombrivane::network
