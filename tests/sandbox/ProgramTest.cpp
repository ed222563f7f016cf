#include "tests/sandbox/ServiceClient.h"

#include "sandbox/control/CommandLine.h"
#include "sandbox/world/Dates.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <filesystem>

#include <sys/wait.h>
#include <unistd.h>

namespace ombrivane::sandbox {

namespace {

/// The program as a child process, with a pipe to its standard input and from its standard output.
class Program {
public:
    explicit Program(const std::vector<std::string>& arguments) {
        std::array<int, 2> input{};
        std::array<int, 2> output{};
        if (::pipe(input.data()) != 0 || ::pipe(output.data()) != 0) throw std::runtime_error("no pipe");
        id_ = ::fork();
        if (id_ == 0) {
            ::dup2(input[0], STDIN_FILENO);
            ::dup2(output[1], STDOUT_FILENO);
            ::close(input[1]);
            std::vector<std::string> words{SANDBOX_PROGRAM};
            words.insert(words.end(), arguments.begin(), arguments.end());
            std::vector<char*> raw;
            for (std::string& word : words)
                raw.push_back(word.data());
            raw.push_back(nullptr);
            ::execv(raw[0], raw.data());
            ::_exit(127);
        }
        ::close(input[0]);
        ::close(output[1]);
        input_ = input[1];
        output_ = output[0];
    }
    ~Program() {
        if (id_ > 0) ::kill(id_, SIGKILL), wait();
        ::close(output_);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    std::string line() {
        std::string text;
        for (char letter = 0; ::read(output_, &letter, 1) == 1 && letter != '\n';)
            text += letter;
        return text;
    }

    void signal(int number) const { ::kill(id_, number); }
    void closeInput() const { ::close(input_); }

    /// The exit status, or -1 when a signal ended it.
    int wait() {
        int status = 0;
        ::waitpid(id_, &status, 0);
        id_ = 0;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    pid_t id_ = 0;
    int input_ = -1;
    int output_ = -1;
};

TEST(Program, TellsItsAddressServesAndEndsCleanly) {
    for (const bool withSignal : {true, false}) {
        Program program(withSignal ? std::vector<std::string>{"--client", "me:mine"}
                                   : std::vector<std::string>{"--client", "me:mine", "--exit-with-stdin"});
        const Json start = Json::parse(program.line());
        const auto ca = start.at("ca").get<std::string>();
        const WireAnswer answer = exchange(start.at("address").get<std::string>(),
                                           ca,
                                           {"POST",
                                            "/api/b2b/v2/get-token",
                                            {"Content-Type: application/json"},
                                            R"({"user_type":"agent","username":"me","password":"mine"})"});
        EXPECT_EQ(answer.status(), 200);
        if (withSignal) {
            program.signal(SIGTERM);
        } else {
            program.closeInput();
        }
        EXPECT_EQ(program.wait(), 0);
        EXPECT_FALSE(std::filesystem::exists(ca));
    }
}

TEST(CommandLine, IsReadWhole) {
    const CommandLine line =
        parseCommandLine({"--seed",   "9",           "--now",  "2026-03-01T05:45:00+05:45",
                          "--freeze", "--documents", "never",  "--certificate",
                          "expired",  "--client",    "a:b:c",  "--client",
                          "d:e",      "--offers",    "10000",  "--otp",
                          "7",        "--fault",     "* drop", "--ca-out",
                          "x.pem",    "--port",      "8443"});
    EXPECT_EQ(line.options.seed, 9U);
    EXPECT_EQ(line.options.now, parseInstant("2026-03-01T00:00:00Z"));
    EXPECT_TRUE(line.options.frozen);
    EXPECT_EQ(line.options.documents, DocumentsRule::Never);
    EXPECT_EQ(line.options.certificate, CertificateKind::Expired);
    EXPECT_EQ(line.options.clients, (std::map<std::string, std::string>{{"a", "b:c"}, {"d", "e"}}));
    EXPECT_EQ(line.options.offers, 10'000U);
    EXPECT_EQ(line.options.otp, "7");
    EXPECT_EQ(line.options.faults, std::vector<std::string>{"* drop"});
    EXPECT_EQ(line.options.caFile, "x.pem");
    EXPECT_EQ(line.options.port, 8443);
}

TEST(CommandLine, RefusesWhatItCannotRead) {
    using Words = std::vector<std::string>;
    for (const Words& wrong : {Words{"--verbose"},
                               Words{"--port"},
                               Words{"--port", "70000"},
                               Words{"--now", "soon"},
                               Words{"--now", "2026-03-01T25:00:00Z"},
                               Words{"--offers", "10001"},
                               Words{"--certificate", "nice"},
                               Words{"--documents", "maybe"},
                               Words{"--client", "wallet"},
                               Words{"--fault", "drop"}})
        EXPECT_THROW(parseCommandLine(wrong), std::invalid_argument) << wrong.front() << wrong.size();
}

TEST(Server, AnswersSeveralRequestsOnOneConnection) {
    Sandbox sandbox;
    sandbox.start();
    const WireAnswer answer =
        exchange(sandbox.address(), sandbox.caFile(), {"POST", "/api/b2b/v2/get-token", {}, "{}", 3});
    EXPECT_EQ(sandbox.counters().requests, 3U);
    EXPECT_EQ(sandbox.counters().connections, 1U);
    EXPECT_EQ(answer.end, WireEnd::InOrder);
    std::size_t answers = 0;
    for (std::size_t at = 0; (at = answer.bytes.find("HTTP/1.1 422", at)) != std::string::npos; ++at)
        ++answers;
    EXPECT_EQ(answers, 3U);
}

TEST(Server, RefusesWhatItCannotRead) {
    struct Case {
        WireRequest request;
        int status;
        const char* error;
    };
    const std::string json = "Content-Type: application/json";
    const std::string deep = std::string(100'000, '[') + std::string(100'000, ']');
    Sandbox sandbox;
    sandbox.start();
    for (const Case& scenario :
         {Case{{"GET", "/api/b2b/v2/get-token"}, 405, "/get-token takes POST."},
          Case{{"GET", "/api/b2b/v1/get-token"}, 404, "There is nothing at /api/b2b/v1/get-token."},
          Case{{"POST", "/api/b2b/v2/get-token", {json}, "{"}, 422, "The request body is no JSON."},
          Case{
              {"POST", "/api/b2b/v2/get-token", {json}, deep}, 422, "The request body is nested too deeply."},
          Case{{"POST", "/x", {"Transfer-Encoding: chunked"}}, 411, "A Content-Length is needed."},
          Case{{"GET", "/x", {"no colon"}}, 400, "A header has no colon."}}) {
        const WireAnswer answer = exchange(sandbox.address(), sandbox.caFile(), scenario.request);
        EXPECT_EQ(answer.status(), scenario.status) << scenario.error;
        EXPECT_EQ(ServiceClient::error(Json::parse(answer.body())), scenario.error);
    }
}

TEST(Controls, ShowAndChangeTheSandboxWithoutBeingCounted) {
    ServiceClient client(frozenOptions());
    const auto control = [&](const char* method, const char* path, const char* body) {
        return Json::parse(client.send({method, path, {}, body}).body());
    };
    const Json requests = control("GET", "/sandbox/requests", "");
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(requests[0]["target"], "/api/b2b/v2/get-token");
    EXPECT_EQ(requests[0]["headers"][2]["value"], "application/json");
    EXPECT_EQ(Json::parse(requests[0]["body"].get<std::string>())["username"], "wallet");

    EXPECT_TRUE(control("POST", "/sandbox/faults", R"(["/countries refuse=Later."])").empty());
    EXPECT_EQ(ServiceClient::error(client.get("/countries?user_type=customer")), "Later.");
    EXPECT_EQ(control("POST", "/sandbox/faults", R"(["nonsense"])")["error"],
              "\"nonsense\" does not read PATH KIND[=VALUE].");
    EXPECT_EQ(ServiceClient::error(client.get("/countries?user_type=customer")), "Later.")
        << "the old fault stays";
    EXPECT_EQ(control("GET", "/sandbox/counters", ""),
              Json({{"connections", 3}, {"handshakeFailures", 0}, {"requests", 3}}));

    const Json past = searchBody("KTM", "PKR");
    EXPECT_EQ(ServiceClient::error(client.post("/search-flights", past)), "");
    control("POST", "/sandbox/clock", R"({"advance":1728000})");
    EXPECT_EQ(ServiceClient::error(client.post("/search-flights", past)), "The departure date has passed.");

    EXPECT_TRUE(control("POST", "/sandbox/reset", "").empty());
    EXPECT_EQ(ServiceClient::error(client.get("/countries?user_type=customer")), "Unauthenticated.");
    EXPECT_EQ(client.sandbox().counters().requests, 1U);
}

} // namespace

} // namespace ombrivane::sandbox
