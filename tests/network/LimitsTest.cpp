#include "network/Line.h"

#include <curl/curl.h>
#include <gtest/gtest.h>

#include <thread>

namespace ombrivane::network {
namespace {

using std::chrono::seconds;

struct SizeCase {
    std::string fault;
    std::optional<std::size_t> size; ///< of what arrives; none where it is too large

    friend std::ostream& operator<<(std::ostream& out, const SizeCase& row) { return out << row.fault; }
};

void expectSize(const HttpAnswer& answer, const SizeCase& row) {
    if (row.size) {
        ASSERT_TRUE(answer.data) << answer.error->localizedDescription;
        EXPECT_EQ(answer.data->size(), *row.size);
    } else {
        EXPECT_FALSE(answer.data);
        EXPECT_EQ(answer.error.value_or(noAnswer).localizedDescription, "The answer is too large.");
    }
}

class AnswerSizeTest : public testing::TestWithParam<SizeCase> {};

TEST_P(AnswerSizeTest, AnAnswerUpToTheLimitArrives) {
    Line line({"/reservation " + GetParam().fault}, 100'000);
    HttpRequest request = line.reservation();
    request.timeoutInterval = seconds(30); // a busy service takes its time to pack a bomb
    expectSize(line.send(request), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Small, AnswerSizeTest,
                         testing::Values(SizeCase{"huge=100000", 100'000}, SizeCase{"huge=100001", {}},
                                         SizeCase{"gzip-bomb=100000", 100'000},
                                         SizeCase{"gzip-bomb=100001", {}}, SizeCase{"gzip-bomb=50000000", {}},
                                         SizeCase{"endless", {}}));

TEST(LimitsTest, TheLimitsThatAWalletRunsWith) {
    const std::size_t answer = 32UL << 20U;
    const std::size_t picture = 1UL << 20U;
    for (const SizeCase& row : {SizeCase{"huge=" + std::to_string(answer), answer},
                                SizeCase{"huge=" + std::to_string(answer + 1), {}},
                                SizeCase{"gzip-bomb=" + std::to_string(answer), answer},
                                SizeCase{"gzip-bomb=" + std::to_string(answer + 1), {}}}) {
        SCOPED_TRACE(row.fault);
        Line line({"/reservation " + row.fault});
        expectSize(line.send(line.reservation()), row);
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
    Line line({std::string("/reservation ") + row.fault}, std::size_t{1} << 40U);
    HttpRequest request = line.reservation();
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
                                TimeCase{"trickle=25", 2, 30, true},
                                TimeCase{"trickle=3000", 2, 30, false},
                                TimeCase{"endless", 30, 1, false}}) {
        threads.emplace_back([row] { check(row); });
    }
    for (auto& thread : threads)
        thread.join();
}

} // namespace
} // namespace ombrivane::network
