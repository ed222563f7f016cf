#include "sandbox/Page.h"
#include "tests/sandbox/BookingFixture.h"

namespace ombrivane::sandbox {
namespace {

class PageTest : public BookingFixture {
protected:
    WireAnswer ask(const std::string& method, const std::string& path, const std::string& body = "",
                   std::vector<std::string> headers = {}) {
        return client_.send({method, path, std::move(headers), body});
    }
    Json state() { return Json::parse(ask("GET", "/sandbox/state").body()); }
    Json fault(std::size_t at) { return state().at("faults").at(at); }
};

TEST_F(PageTest, IsServedUnderAPolicyThatLetsItsOwnScriptRunAlone) {
    const WireAnswer page = ask("GET", "/sandbox");
    EXPECT_EQ(page.status(), 200);
    EXPECT_EQ(page.body(), pageText);
    const std::string policy = page.header("Content-Security-Policy");
    EXPECT_EQ(policy.find("default-src 'none'; script-src 'sha256-"), 0U) << policy;
    EXPECT_EQ(policy.find("unsafe"), std::string::npos);
    // What the policy would refuse, and what would make markup of a text.
    for (const char* word :
         {" style=", " onclick=", "innerHTML", "outerHTML", "insertAdjacent", "document.write", "http"})
        EXPECT_EQ(pageText.find(word), std::string_view::npos) << word;
    EXPECT_EQ(ask("GET", "/sandboxes").status(), 404) << "a path of the service";
}

TEST_F(PageTest, TellsWhatWasWrongAndKeepsWhatWasSent) {
    Json passengers = family();
    passengers[0]["last_name"] = "<script>alert(1)</script>";
    passengers[0]["dob"] = "2020-01-01";
    reserve(openFamilyBooking(), passengers);
    client_.sandbox().setFaults(
        {"/countries drop", "/search-airports status=503", "/search-airports latency=1"});
    client_.get("/search-airports?q=secret-word&user_type=customer");
    ask("GET", "/api/b2b/v2/countries");

    const Json now = state();
    const std::string text = now.dump();
    for (const char* sent : {"Bearer", "wallet-secret", "secret-word", "script>", "Asha", "9801234567"})
        EXPECT_EQ(text.find(sent), std::string::npos) << sent;
    const Json& requests = now.at("requests");
    ASSERT_EQ(requests.size(), 6U);
    EXPECT_EQ(requests[0].at("path"), "/api/b2b/v2/get-token");
    EXPECT_EQ(requests[0].at("status"), 200);
    EXPECT_EQ(requests[0].at("refusal"), "");
    EXPECT_EQ(requests[3].at("status"), 422);
    EXPECT_EQ(requests[3].at("refusal"), client_.sandbox().requests()[3].refusal);
    EXPECT_NE(requests[3].at("refusal"), "");
    EXPECT_TRUE(requests[3].at("milliseconds").is_number_unsigned());
    EXPECT_EQ(requests[4].at("status"), 503);
    EXPECT_EQ(requests[4].at("faults"),
              Json::parse(R"(["/search-airports status=503","/search-airports latency=1"])"));
    EXPECT_EQ(requests[5].at("status"), 0) << "no answer was begun";
    EXPECT_EQ(requests[5].at("refusal"), "Unauthenticated.");
    EXPECT_EQ(now.at("counters").at("requests"), 6);
}

TEST_F(PageTest, SwitchesScenariosAndFaultsBothAtOnceOrNeither) {
    const auto play = [&](const char* body) { return ask("POST", "/sandbox/play", body).status(); };
    EXPECT_EQ(play(R"({"scenarios":["dearer","sold-out"],"faults":["/countries empty times=2 after=1"]})"),
              200);
    const Json before = state();
    EXPECT_EQ(before.at("scenarios").at(2).at("inForce"), true);
    EXPECT_EQ(before.at("scenarios").at(0).at("inForce"), false);
    EXPECT_EQ(fault(0).at("scenario"), "sold-out");
    EXPECT_EQ(
        fault(1),
        Json::parse(R"({"fault":"/countries empty times=2 after=1","scenario":"","met":0,"isOver":false})"));
    for (const char* wrong : {R"({"scenarios":["dearer"],"faults":["nonsense"]})",
                              R"({"scenarios":["x"],"faults":[]})",
                              R"({"scenarios":[]})",
                              R"({"scenarios":7,"faults":[]})",
                              "[]",
                              "",
                              "{"})
        EXPECT_EQ(play(wrong), 400) << wrong;
    EXPECT_EQ(state(), before);
    for (int request = 0; request < 4; ++request)
        ask("GET", "/api/b2b/v2/countries");
    EXPECT_EQ(fault(1).at("met"), 2);
    EXPECT_EQ(fault(1).at("isOver"), true);
}

TEST_F(PageTest, MovesTheClockAndObeysItsOwnPageAlone) {
    EXPECT_EQ(ask("POST", "/sandbox/clock", R"({"advance":90})", {"Origin: https://localhost"}).status(),
              200);
    EXPECT_EQ(state().at("clock"), Json::parse(R"({"now":"2026-03-01T12:01:30Z","frozen":true})"));
    for (const char* origin : {"Origin: https://example.com",
                               "Origin: null",
                               "Origin: http://localhost",
                               "Origin: https://localhost:1"})
        EXPECT_EQ(ask("POST", "/sandbox/reset", "{}", {origin}).status(), 403) << origin;
    EXPECT_EQ(state().at("requests").size(), 1U) << "nothing was forgotten";
    EXPECT_EQ(ask("POST", "/sandbox/reset", "{}").status(), 200);
    EXPECT_EQ(state().at("requests").size(), 0U);
}

} // namespace
} // namespace ombrivane::sandbox
