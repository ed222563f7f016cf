#include "network/Line.h"
#include "network/TlsServer.h"

#include <curl/curl.h>
#include <gtest/gtest.h>

#include <thread>

namespace ombrivane::network {
namespace {

using std::chrono::seconds;

struct SizeCase {
    std::string fault;
    std::optional<std::size_t> size; ///< of what arrives; none where it is too large
    std::string told{};              ///< of the size, where it is too large

    friend std::ostream& operator<<(std::ostream& out, const SizeCase& row) { return out << row.fault; }
};

void expectSize(const HttpAnswer& answer, const SizeCase& row) {
    if (row.size) {
        ASSERT_TRUE(answer.data) << answer.error->localizedDescription;
        EXPECT_EQ(answer.data->size(), *row.size);
    } else {
        EXPECT_FALSE(answer.data);
        EXPECT_EQ(answer.error.value_or(noAnswer).localizedDescription, "The answer is too large.");
        const std::string said = answer.error.value_or(noAnswer).developerDescription;
        EXPECT_EQ(said.find("the body has more than"), 0U) << said;
        EXPECT_NE(said.find(row.told), std::string::npos) << said;
    }
}

class AnswerSizeTest : public testing::TestWithParam<SizeCase> {};

TEST_P(AnswerSizeTest, AnAnswerUpToTheLimitArrives) {
    Line line({"/reservation " + GetParam().fault});
    HttpRequest request = line.reservation();
    request.answerBytes = 100'000;
    request.timeoutInterval = seconds(30); // a busy service takes its time to pack a bomb
    expectSize(line.send(request), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Small, AnswerSizeTest,
                         testing::Values(SizeCase{"huge=100000", 100'000},
                                         SizeCase{"huge=100001", {}, "100000 bytes, 100001 announced"},
                                         SizeCase{"gzip-bomb=100000", 100'000},
                                         SizeCase{"gzip-bomb=100001", {}}, SizeCase{"gzip-bomb=50000000", {}},
                                         SizeCase{"endless", {}, "100000 bytes"}));

TEST(LimitsTest, TheLimitsThatAWalletRunsWith) {
    const std::size_t answer = 160UL << 20U;
    const std::size_t picture = 1UL << 20U;
    for (const SizeCase& row : {SizeCase{"gzip-bomb=" + std::to_string(answer), answer},
                                SizeCase{"gzip-bomb=" + std::to_string(answer + 1), {}}}) {
        SCOPED_TRACE(row.fault);
        Line line({"/reservation " + row.fault});
        HttpRequest request = line.reservation();
        request.answerBytes = limits::searchBytes;
        request.timeoutInterval = seconds(30);
        expectSize(line.send(request), row);
    }
    for (const SizeCase& row : {SizeCase{"huge=" + std::to_string(picture), picture},
                                SizeCase{"huge=" + std::to_string(picture + 1), {}},
                                SizeCase{"gzip-bomb=" + std::to_string(picture + 1), {}},
                                SizeCase{"endless", {}}}) {
        SCOPED_TRACE(row.fault);
        Line line({"/logos/H0.png " + row.fault});
        expectSize(line.fetchPicture("/logos/H0.png"), row);
    }
}

struct TimeCase {
    const char* fault;
    int idle;  ///< seconds
    int whole; ///< seconds
    bool arrives;
};

/// A server of its own for each row, asked by a thread of its own: all at once, since each is mostly waiting.
void check(const TimeCase& row) {
    Line line({std::string("/reservation ") + row.fault});
    HttpRequest request = line.reservation();
    request.answerBytes = std::size_t{1} << 40U;
    request.timeoutInterval = seconds(row.idle);
    request.wholeInterval = seconds(row.whole);
    const auto start = std::chrono::steady_clock::now();
    const HttpAnswer answer = line.send(request);
    const auto taken = std::chrono::steady_clock::now() - start;

    SCOPED_TRACE(row.fault);
    EXPECT_EQ(answer.data.has_value(), row.arrives);
    EXPECT_EQ(line.server().requests().size(), 1U);
    if (row.arrives) return;
    EXPECT_EQ(answer.error.value_or(noAnswer).code, CURLE_OPERATION_TIMEDOUT);
    const auto limit = std::chrono::milliseconds(1000 * std::min(row.idle, row.whole));
    EXPECT_GE(taken, limit - std::chrono::milliseconds(50));
    EXPECT_LE(taken, limit + std::chrono::milliseconds(1800));
}

TEST(LimitsTest, SilenceAndDurationHaveAnEnd) {
    std::vector<std::thread> threads;
    for (const TimeCase& row : {TimeCase{"silence", 2, 30, false},
                                TimeCase{"silence", 30, 1, false},
                                TimeCase{"latency=20000", 1, 30, false},
                                TimeCase{"latency=1000", 3, 30, true},
                                TimeCase{"trickle=50", 30, 2, false},
                                TimeCase{"trickle=3000", 2, 30, false},
                                TimeCase{"endless", 30, 1, false}}) {
        threads.emplace_back([row] { check(row); });
    }
    for (auto& thread : threads)
        thread.join();
}

/// What a server says around a body.
struct Words {
    std::string name;
    std::string first; ///< up to where it repeats
    std::string again; ///< said `times` times
    int times;         ///< -1 for ever
    std::string last;
    const char* failure; ///< how the developer's text begins; nothing where the answer arrives
    int pause = 0;       ///< milliseconds before each repetition

    friend std::ostream& operator<<(std::ostream& out, const Words& row) { return out << row.name; }
};

class WordsTest : public testing::TestWithParam<Words> {};

TEST_P(WordsTest, WhatSurroundsABodyIsLimitedAndNoSignOfLife) {
    const Words& row = GetParam();
    TlsServer server([&row](sandbox::TlsConnection& connection) {
        if (!readRequest(connection) || !connection.write(row.first)) return;
        for (int i = 0; i != row.times; ++i) {
            if (row.pause > 0 && !connection.pause(std::chrono::milliseconds(row.pause))) return;
            if (!connection.write(row.again)) return;
        }
        connection.write(row.last);
    });
    CurlNetwork network({.caFile = server.caFile()});
    HttpRequest request;
    request.url = server.url();
    request.method = "POST";
    request.body = passengers;
    request.timeoutInterval = seconds(2);
    request.wholeInterval = seconds(20);
    const HttpAnswer answer =
        awaited([&](HttpCompletion completion) { network.send(std::move(request), std::move(completion)); });
    if (*row.failure == '\0') {
        EXPECT_EQ(answer.data.value_or("").substr(0, 2), "{}")
            << answer.error.value_or(noAnswer).developerDescription;
    } else {
        EXPECT_FALSE(answer.data);
        EXPECT_EQ(answer.error.value_or(noAnswer).developerDescription.find(row.failure), 0U)
            << answer.error.value_or(noAnswer).developerDescription;
    }
}

const std::string ok = "HTTP/1.1 200 OK\r\n";
const std::string counted = "Content-Length: 2\r\n\r\n{}";
const std::string open = "Transfer-Encoding: chunked\r\n\r\n2\r\n{}\r\n";
const std::string chunked = open + "0\r\n";
const std::string line = "X-Line: " + std::string(1014, 'x') + "\r\n"; // 1 KiB
const std::string early = "HTTP/1.1 103 Early Hints\r\n\r\n";
constexpr const char* tooMuch = "headers and trailers have more than 65536 bytes";
constexpr const char* silent = "no body moved for 2 s";

INSTANTIATE_TEST_SUITE_P(Around, WordsTest,
                         testing::Values(Words{"HeadersUpToTheLimit", ok, line, 63, counted, ""},
                                         Words{"TooManyHeaders", ok, line, 64, counted, tooMuch},
                                         Words{"TrailersUpToTheLimit", ok + chunked, line, 63, "\r\n", ""},
                                         Words{"TooManyTrailers", ok + chunked, line, 64, "\r\n", tooMuch},
                                         Words{"EndlessTrailers", ok + chunked, line, -1, "", tooMuch},
                                         Words{"EndlessEarlyAnswers", "", early, -1, "", tooMuch},
                                         Words{"AFewEarlyAnswers", "", early, 20, ok + counted, ""},
                                         Words{"SlowBody", ok + open, "1\r\n \r\n", 5, "0\r\n\r\n", "", 600},
                                         Words{"SlowHeaders", ok, line, -1, "", silent, 500},
                                         Words{"SlowTrailers", ok + chunked, line, -1, "", silent, 500},
                                         Words{"SlowEarlyAnswers", "", early, -1, "", silent, 500}),
                         [](const auto& row) { return row.param.name; });

} // namespace
} // namespace ombrivane::network
