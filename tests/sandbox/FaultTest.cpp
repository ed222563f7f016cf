#include "sandbox/HttpsServer.h"
#include "sandbox/control/Faults.h"
#include "tests/sandbox/ServiceClient.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <numeric>
#include <stdexcept>
#include <thread>

namespace ombrivane::sandbox {

namespace {

using std::chrono::milliseconds;

const WireRequest countries{"GET", "/api/b2b/v2/countries?user_type=customer", {}, ""};

WireRequest authorized(WireRequest request, const ServiceClient& client) {
    request.headers.push_back(client.authorization());
    return request;
}

Json parsed(const std::string& body) { return Json::parse(body, nullptr, false); }

/// Unpacks a gzip body and counts its bytes.
std::size_t unpackedSize(const std::string& packed) {
    z_stream stream{};
    inflateInit2(&stream, 15 + 16);
    std::string input = packed;
    stream.next_in = reinterpret_cast<unsigned char*>(input.data());
    stream.avail_in = static_cast<uInt>(input.size());
    std::vector<unsigned char> buffer(1 << 20);
    int state = Z_OK;
    while (state == Z_OK) {
        stream.next_out = buffer.data();
        stream.avail_out = static_cast<uInt>(buffer.size());
        state = inflate(&stream, Z_NO_FLUSH);
    }
    inflateEnd(&stream);
    return state == Z_STREAM_END ? stream.total_out : 0;
}

/// What one fault does to the answer of /countries, as the client sees it.
struct FaultCase {
    const char* fault;
    std::function<void(const WireAnswer&)> check;
};

const std::vector<FaultCase>& cases() {
    static const std::vector<FaultCase> list{
        {"latency=150", [](const WireAnswer& a) { EXPECT_GE(a.firstByte, milliseconds(150)); }},
        {"status=503",
         [](const WireAnswer& a) {
             EXPECT_EQ(a.status(), 503);
             EXPECT_EQ(parsed(a.body())["success"], true);
         }},
        {"refuse=Not now, times are hard.",
         [](const WireAnswer& a) {
             EXPECT_EQ(parsed(a.body()),
                       Json({{"success", false}, {"data", {{"error", "Not now, times are hard."}}}}));
         }},
        {"malformed", [](const WireAnswer& a) { EXPECT_TRUE(parsed(a.body()).is_discarded()); }},
        {"truncate=40",
         [](const WireAnswer& a) {
             EXPECT_EQ(a.body().size(), 40U);
             EXPECT_EQ(a.header("Content-Length"), "40");
         }},
        {"short",
         [](const WireAnswer& a) {
             EXPECT_EQ(std::stoul(a.header("Content-Length")), a.body().size() + 512);
             EXPECT_EQ(a.end, WireEnd::InOrder);
         }},
        {"drop",
         [](const WireAnswer& a) {
             EXPECT_EQ(a.bytes, "");
             EXPECT_EQ(a.end, WireEnd::InOrder);
         }},
        {"reset",
         [](const WireAnswer& a) {
             EXPECT_EQ(a.bytes, "");
             EXPECT_EQ(a.end, WireEnd::Reset);
         }},
        {"half-status-line",
         [](const WireAnswer& a) {
             EXPECT_EQ(a.bytes, "HTTP/1.1 2");
             EXPECT_EQ(a.end, WireEnd::InOrder);
         }},
        {"silence",
         [](const WireAnswer& a) {
             EXPECT_EQ(a.bytes, "");
             EXPECT_EQ(a.end, WireEnd::StillOpen);
         }},
        {"wrong-type=data.countries.0.id",
         [](const WireAnswer& a) { EXPECT_EQ(parsed(a.body())["data"]["countries"][0]["id"], "1"); }},
        {"wrong-type=success",
         [](const WireAnswer& a) { EXPECT_TRUE(parsed(a.body())["success"].is_string()); }},
        {"missing-key=data.countries.1.name",
         [](const WireAnswer& a) {
             EXPECT_FALSE(parsed(a.body())["data"]["countries"][1].contains("name"));
             EXPECT_TRUE(parsed(a.body())["data"]["countries"][0].contains("name"));
         }},
        {"missing-key=data.flights",
         [](const WireAnswer& a) {
             EXPECT_EQ(ServiceClient::error(parsed(a.body())),
                       "The fault names data.flights, which this answer does not have.");
         }},
        {"extra=9",
         [](const WireAnswer& a) {
             EXPECT_TRUE(parsed(a.body()).is_discarded());
             EXPECT_TRUE(parsed(a.body().substr(0, a.body().size() - 9)).is_object());
         }},
        {"redirect=https://other.example/x",
         [](const WireAnswer& a) {
             EXPECT_EQ(a.status(), 307);
             EXPECT_EQ(a.header("Location"), "https://other.example/x");
         }},
        {"empty",
         [](const WireAnswer& a) {
             EXPECT_EQ(a.status(), 200);
             EXPECT_EQ(a.body(), "");
         }},
        {"scalar", [](const WireAnswer& a) { EXPECT_TRUE(parsed(a.body()).is_number()); }},
        {"huge=3000000",
         [](const WireAnswer& a) {
             EXPECT_EQ(a.body().size(), 3'000'000U);
             EXPECT_EQ(parsed(a.body())["success"], true);
         }},
        {"endless",
         [](const WireAnswer& a) {
             EXPECT_EQ(a.header("Transfer-Encoding"), "chunked");
             EXPECT_EQ(a.end, WireEnd::StillOpen);
             EXPECT_GT(a.bytes.size(), 1'000'000U);
         }},
        {"deep=5000",
         [](const WireAnswer& a) { EXPECT_EQ(std::count(a.bytes.begin(), a.bytes.end(), '['), 5000); }},
        {"nul", [](const WireAnswer& a) { EXPECT_NE(a.body().find('\0'), std::string::npos); }},
        {"invalid-utf8",
         [](const WireAnswer& a) {
             EXPECT_TRUE(parsed(a.body()).is_discarded());
             std::string repaired = a.body();
             repaired.erase(repaired.find("\xC3\x28\xFF"), 3);
             EXPECT_TRUE(parsed(repaired).is_object());
         }},
        {"gzip-bomb=20000000",
         [](const WireAnswer& a) {
             EXPECT_EQ(a.header("Content-Encoding"), "gzip");
             EXPECT_LT(a.body().size(), 100'000U);
             EXPECT_EQ(unpackedSize(a.body()), 20'000'000U);
         }},
    };
    return list;
}

TEST(Faults, ShowOnTheWireAndTheRequestIsRecordedOnce) {
    ServiceClient client;
    const WireRequest request = authorized(countries, client);
    for (const FaultCase& scenario : cases()) {
        SCOPED_TRACE(scenario.fault);
        const std::size_t before = client.sandbox().requests().size();
        client.sandbox().setFaults({std::string("/countries ") + scenario.fault});
        scenario.check(exchange(client.sandbox().address(),
                                client.sandbox().caFile(),
                                request,
                                milliseconds(1500),
                                2 * 1024 * 1024 + 2'000'000));
        EXPECT_EQ(client.sandbox().requests().size(), before + 1);
    }
}

TEST(Faults, EveryKindIsTested) {
    const auto isTested = [](const FaultForm& form) {
        return form.kind == FaultKind::Trickle ||
               std::any_of(cases().begin(), cases().end(), [&](const FaultCase& scenario) {
                   return parseFault(std::string("* ") + scenario.fault).kind == form.kind;
               });
    };
    for (const FaultForm& form : faultForms())
        EXPECT_TRUE(isTested(form)) << form.name;
}

TEST(Faults, ATrickleTakesItsTimeAndArrivesWhole) {
    ServiceClient client;
    client.sandbox().setFaults({"/get-token trickle=1"});
    const auto start = std::chrono::steady_clock::now();
    const WireAnswer answer =
        client.send({"POST",
                     "/api/b2b/v2/get-token",
                     {"Content-Type: application/json"},
                     R"({"user_type":"customer","username":"wallet","password":"no"})"});
    EXPECT_EQ(ServiceClient::error(parsed(answer.body())), "Invalid credentials.");
    EXPECT_GE(std::chrono::steady_clock::now() - start, milliseconds(answer.bytes.size()));
}

TEST(Faults, HappenAfterSoManyRequestsAndSoOften) {
    ServiceClient client;
    client.sandbox().setFaults({"/countries status=500 after=1 times=2", "* status=404 times=1"});
    const WireRequest request = authorized(countries, client);
    std::vector<int> statuses;
    for (int i = 0; i < 5; ++i)
        statuses.push_back(client.send(request).status());
    EXPECT_EQ(statuses, (std::vector<int>{404, 500, 500, 200, 200}));
}

TEST(Faults, ARefusedOrRedirectedRequestIsNotDoneButOneWithoutAnAnswerIs) {
    struct Effect {
        const char* fault;
        bool isDone;
    };
    ServiceClient client;
    for (const Effect& effect :
         {Effect{"refuse=No.", false}, Effect{"redirect=/x", false}, Effect{"drop", true}}) {
        client.sandbox().reset();
        client.sandbox().setFaults({std::string("/get-token ") + effect.fault});
        const WireRequest request{
            "POST",
            "/api/b2b/v2/get-token",
            {"Content-Type: application/json"},
            R"({"user_type":"customer","username":"wallet","password":"wallet-secret"})"};
        client.send(request);
        client.sandbox().setFaults({});
        const Json next = parsed(client.send(request).body());
        client.sandbox().reset();
        const Json first = parsed(client.send(request).body());
        EXPECT_EQ(next != first, effect.isDone) << effect.fault;
    }
}

TEST(Faults, StoppingEndsASilentConnection) {
    ServiceClient client;
    client.sandbox().setFaults({"* silence"});
    const WireRequest request = authorized(countries, client);
    WireAnswer answer;
    std::thread waiting([&] { answer = client.send(request); });
    while (client.sandbox().requests().size() < 2)
        std::this_thread::yield();
    client.sandbox().stop();
    waiting.join();
    EXPECT_EQ(answer.bytes, "");
    EXPECT_NE(answer.end, WireEnd::StillOpen);
}

TEST(Faults, AHandlerThatThrowsIsAnsweredAndTheServerLivesOn) {
    ServiceClient client; // whose file of certificates is at hand
    const ServerIdentity identity = makeServerIdentity(CertificateKind::Good);
    const auto caFile = client.sandbox().caFile().replace_filename("throwing.pem");
    std::ofstream(caFile) << identity.authorityPem;
    RequestLog log;
    const HttpsServer server(0, identity, log, [](const HttpRequest&, bool, TlsConnection&) -> bool {
        throw std::out_of_range("beyond the end");
    });
    for (int i = 0; i < 2; ++i) {
        const WireAnswer answer =
            exchange("https://localhost:" + std::to_string(server.port()), caFile, countries);
        EXPECT_EQ(answer.status(), 500);
        EXPECT_EQ(ServiceClient::error(parsed(answer.body())),
                  "The sandbox cannot answer this: beyond the end");
    }
}

TEST(Faults, ThatDoNotReadAreRefusedWithASentence) {
    const std::vector<std::pair<const char*, const char*>> wrong{
        {"/get-token", "\"/get-token\" does not read PATH KIND[=VALUE]."},
        {"get-token drop", "\"get-token drop\" does not read PATH KIND[=VALUE]."},
        {"/get-token explode", "There is no fault \"explode\"."},
        {"/get-token drop=1", "\"drop\" takes no value."},
        {"/get-token latency", "\"latency\" takes MS."},
        {"/get-token latency=soon", "\"soon\" of latency is no number."},
        {"/get-token status=20", "A status has three digits."},
        {"/get-token drop times=x", "\"x\" of times= is no number."},
        {"/get-token missing-key=data.", "\"data.\" of missing-key has an empty step."},
        {"/get-token wrong-type=.data", "\".data\" of wrong-type has an empty step."},
        {"/get-token wrong-type=data..0", "\"data..0\" of wrong-type has an empty step."},
        {"/get-token extra=1000000001", "\"extra\" takes at most 1000000000."},
        {"/get-token deep=1000000000000", "\"deep\" takes at most 1000000000."},
        {"/get-token gzip-bomb=1000000000000", "\"gzip-bomb\" takes at most 1000000000."},
        {"/get-token latency=86400001", "\"latency\" takes at most 86400000."},
        {"/get-token trickle=18446744073709551615", "\"trickle\" takes at most 86400000."},
    };
    for (const auto& [text, complaint] : wrong) {
        try {
            parseFault(text);
            ADD_FAILURE() << text;
        } catch (const std::invalid_argument& refused) {
            EXPECT_STREQ(refused.what(), complaint);
        }
    }
}

} // namespace

} // namespace ombrivane::sandbox
