#include "network/Line.h"

#include "sandbox/wire/Certificates.h"

#include <curl/curl.h>
#include <gtest/gtest.h>

namespace ombrivane::network {
namespace {

class CertificateRefusalTest : public testing::TestWithParam<const char*> {};

TEST_P(CertificateRefusalTest, NothingIsSentToAServerThatIsNotTheOneNamed) {
    sandbox::Options options;
    options.certificate = *sandbox::certificateKindNamed(GetParam());
    sandbox::Sandbox server(options);
    server.start();
    CurlNetwork network({.caFile = server.caFile()});
    const bool isGood = std::string(GetParam()) == "good";

    for (const bool isPicture : {false, true}) {
        const HttpAnswer answer = awaited([&](HttpCompletion completion) {
            if (isPicture) return network.fetchPicture(server.address() + "/logos/H0.png", completion);
            HttpRequest request;
            request.url = server.address() + "/api/b2b/v2/get-token";
            request.method = "POST";
            request.body = R"({"password":"secret"})";
            network.send(request, std::move(completion));
        });
        EXPECT_EQ(answer.data.has_value(), isGood);
        EXPECT_EQ(answer.error ? answer.error->code : 0, isGood ? 0 : CURLE_PEER_FAILED_VERIFICATION);
    }
    server.stop();
    EXPECT_EQ(server.requests().size(), isGood ? 2U : 0U);
    EXPECT_EQ(server.counters().connections, 2U) << "the server was not even reached, or more than once";
}

INSTANTIATE_TEST_SUITE_P(Kinds, CertificateRefusalTest,
                         testing::Values("good", "self-signed", "expired", "not-yet-valid", "wrong-host",
                                         "wrong-alternative-names", "untrusted"));

TEST(TrustTest, WithoutAFileThePlatformDecides) {
    Line line;
    CurlNetwork network;
    const HttpAnswer answer =
        awaited([&](HttpCompletion completion) { network.send(line.reservation(), std::move(completion)); });
    EXPECT_EQ(answer.error.value_or(noAnswer).code, CURLE_PEER_FAILED_VERIFICATION);
    EXPECT_TRUE(line.server().requests().empty());
}

TEST(TrustTest, OnlyHttpsIsSpoken) {
    struct Row {
        const char* url;
        bool asPicture;
    };
    CurlNetwork network;
    for (const Row& row : {Row{"http://localhost:1/", false},
                           Row{"http://localhost:1/", true},
                           Row{"file:///etc/hostname", false},
                           Row{"file:///etc/hostname", true},
                           Row{"ftp://localhost:1/", true}}) {
        SCOPED_TRACE(row.url);
        const HttpAnswer answer = awaited([&](HttpCompletion completion) {
            HttpRequest request;
            request.url = row.url;
            if (row.asPicture) return network.fetchPicture(row.url, std::move(completion));
            network.send(request, std::move(completion));
        });
        EXPECT_EQ(answer.error.value_or(noAnswer).code, CURLE_UNSUPPORTED_PROTOCOL);
        EXPECT_FALSE(answer.data);
    }
}

} // namespace
} // namespace ombrivane::network
