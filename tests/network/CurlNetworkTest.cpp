#include "fakes/World.h"
#include "images/ImageLoader.h"
#include "network/Line.h"
#include "network/NameServer.h"
#include "network/TlsServer.h"

#include <curl/curl.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <thread>

namespace ombrivane::network {
namespace {

using std::chrono::milliseconds;

constexpr const char* logo = "/logos/H0.png";

TEST(DestructionTest, EveryRequestIsAnsweredOnceBeforeTheDestructorReturns) {
    Line line({"* silence"});
    Tally tally;
    const int waiting = 6;
    for (int i = 0; i < waiting; ++i)
        line.network().send(line.reservation(), tally.completion());
    line.network().fetchPicture(line.url(logo), tally.completion());
    ASSERT_TRUE(line.serverHasRead(waiting + 1));
    EXPECT_EQ(tally.answers(), 0);

    // And some that the network's thread may not even have seen.
    const int fresh = 20;
    for (int i = 0; i < fresh; ++i)
        line.network().send(line.reservation(), tally.completion());
    const auto start = std::chrono::steady_clock::now();
    line.destroyNetwork();
    EXPECT_LT(std::chrono::steady_clock::now() - start, milliseconds(500));
    EXPECT_EQ(tally.answers(), waiting + 1 + fresh);
    EXPECT_EQ(tally.errors(), waiting + 1 + fresh);
}

TEST(DestructionTest, ACompletionThatAsksAgainIsAnsweredToo) {
    Line line({"* silence"});
    Tally tally;
    CurlNetwork& network = line.network();
    const HttpRequest request = line.reservation();
    std::function<void(int)> ask = [&](int left) {
        network.send(request, [&, left, counted = tally.completion()](const HttpAnswer& answer) {
            counted(answer);
            if (left > 1) ask(left - 1);
        });
    };
    ask(4);
    ASSERT_TRUE(line.serverHasRead(1));
    line.destroyNetwork();
    EXPECT_EQ(tally.answers(), 4);
}

TEST(DestructionTest, ASilentNameServerHoldsUpNobody) {
    SilentNameServer server;
    const std::string url = std::string("https://") + SilentNameServer::name + "/";
    auto network = std::make_unique<CurlNetwork>();
    HttpRequest request;
    request.url = url;
    request.timeoutInterval = std::chrono::seconds(1);
    auto start = std::chrono::steady_clock::now();
    const HttpAnswer answer = awaited([&](auto completion) { network->send(request, completion); });
    EXPECT_EQ(answer.error.value_or(noAnswer).code, CURLE_OPERATION_TIMEDOUT);
    EXPECT_LT(std::chrono::steady_clock::now() - start, milliseconds(3000));

    Tally tally;
    request.timeoutInterval = std::chrono::seconds(60);
    for (int i = 0; i < 3; ++i)
        network->send(request, tally.completion());
    network->fetchPicture(url, tally.completion());
    ASSERT_TRUE(SilentNameServer::isAskedBy(5));
    start = std::chrono::steady_clock::now();
    network.reset();
    EXPECT_LT(std::chrono::steady_clock::now() - start, milliseconds(500));
    EXPECT_EQ(tally.errors(), 4);
    EXPECT_EQ(tally.answers(), 4);
}

/// The threads of this process by their numbers.
std::set<std::string> threads() {
    std::set<std::string> numbers;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/task"))
        numbers.insert(entry.path());
    return numbers;
}

/// How often a thread has been on a processor, as the system tells it.
std::string turnsOf(const std::string& thread) {
    std::ifstream status(thread + "/status");
    std::string turns;
    for (std::string text; std::getline(status, text);)
        if (text.find("ctxt_switches") != std::string::npos) turns += text + " ";
    return turns;
}

TEST(IdleTest, TheThreadSleepsWhileNothingIsAsked) {
    Line line;
    const auto before = threads();
    CurlNetwork network({.caFile = line.server().caFile()});
    std::string own;
    for (const auto& thread : threads())
        if (!before.contains(thread)) own = thread;
    const auto fetch = [&](auto completion) { network.fetchPicture(line.url(logo), completion); };
    ASSERT_TRUE(awaited(fetch).data); // its connection stays
    std::this_thread::sleep_for(milliseconds(200));
    const std::string turns = turnsOf(own);
    EXPECT_NE(turns, "");
    std::this_thread::sleep_for(milliseconds(2500));
    EXPECT_EQ(turnsOf(own), turns);
    EXPECT_TRUE(awaited(fetch).data) << "and wakes when it is";
}

TEST(ParallelTest, RequestsFromSeveralThreadsDoNotWaitForEachOther) {
    const int threads = 4;
    const int perThread = 8;
    Line line({"/reservation latency=400"});
    std::atomic<int> arrived = 0;
    std::atomic<int> inside = 0;
    const auto start = std::chrono::steady_clock::now();
    std::vector<std::thread> senders;
    for (int i = 0; i < threads; ++i) {
        senders.emplace_back([&] {
            const auto own = std::this_thread::get_id();
            for (int j = 0; j < perThread; ++j) {
                line.network().send(line.reservation(), [&, own](const HttpAnswer& answer) {
                    if (std::this_thread::get_id() == own) ++inside;
                    if (answer.data) ++arrived;
                });
            }
        });
    }
    for (auto& sender : senders)
        sender.join();
    while (arrived < threads * perThread &&
           std::chrono::steady_clock::now() - start < std::chrono::seconds(10))
        std::this_thread::sleep_for(milliseconds(5));
    EXPECT_LT(std::chrono::steady_clock::now() - start, milliseconds(400 * threads * perThread / 4));
    line.destroyNetwork();
    EXPECT_EQ(arrived, threads * perThread);
    EXPECT_EQ(inside, 0) << "completed on the caller's own thread";
    EXPECT_EQ(line.server().requests().size(), std::size_t{threads * perThread});
}

TEST(PictureTest, ARedirectIsFollowedAFewTimes) {
    for (const int times : {1, 5, 6}) {
        SCOPED_TRACE(times);
        Line line({std::string(logo) + " redirect=" + logo + " times=" + std::to_string(times)});
        const HttpAnswer answer = line.fetchPicture(logo);
        EXPECT_EQ(answer.data.has_value(), times <= 5);
        if (answer.data) {
            EXPECT_EQ(answer.data->substr(1, 3), "PNG");
        }
        EXPECT_EQ(answer.error ? answer.error->code : 0, times <= 5 ? 0 : CURLE_TOO_MANY_REDIRECTS);
        EXPECT_EQ(line.server().requests().size(), 6U - (times == 1 ? 4U : 0U));
        for (const auto& request : line.server().requests()) {
            for (const auto& header : request.headers) {
                EXPECT_FALSE(sandbox::equalIgnoringCase(header.name, "Authorization"));
                EXPECT_FALSE(sandbox::equalIgnoringCase(header.name, "Cookie"));
            }
        }
    }
}

TEST(PictureTest, NoRedirectLeadsAwayFromHttps) {
    for (const char* target : {"file:///etc/hostname", "http://localhost:1/logo.png"}) {
        Line line({std::string(logo) + " redirect=" + target});
        const HttpAnswer answer = line.fetchPicture(logo);
        EXPECT_FALSE(answer.data);
        EXPECT_EQ(answer.error.value_or(noAnswer).code, CURLE_UNSUPPORTED_PROTOCOL) << target;
    }
}

TEST(PictureTest, PicturesShareAConnectionAndServiceRequestsDoNot) {
    Line line;
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(line.fetchPicture(logo).data);
    EXPECT_EQ(line.server().counters().connections, 1U);
    EXPECT_TRUE(line.send(line.reservation()).data);
    EXPECT_TRUE(line.send(line.reservation()).data);
    EXPECT_EQ(line.server().counters().connections, 3U);
    EXPECT_TRUE(line.fetchPicture(logo).data);
    EXPECT_EQ(line.server().counters().connections, 3U);
}

TEST(PictureTest, ASilentServerOfPicturesTakesAFewConnections) {
    TlsServer server(saysNothing);
    fakes::World world;
    Platform ports = platform();
    ports.network = std::make_shared<CurlNetwork>(CurlSettings{.caFile = server.caFile()});
    Platform::install(ports);
    std::vector<std::shared_ptr<ImageLoader>> rows;
    for (int i = 0; i < 300; ++i) {
        rows.push_back(std::make_shared<ImageLoader>(server.url("/" + std::to_string(i)), nullptr));
        rows.back()->load();
    }
    const auto end = std::chrono::steady_clock::now() + milliseconds(500);
    while (std::chrono::steady_clock::now() < end) {
        world.queue->drain();
        std::this_thread::sleep_for(milliseconds(10));
    }
    EXPECT_GT(server.connections(), 0);
    EXPECT_LE(server.connections(), static_cast<int>(limits::pictureTransfers));
    ports = Platform();
    Platform::endNetwork();
    world.queue->drain();
    for (const auto& row : rows)
        EXPECT_FALSE(row->isLoading.get()) << "each is told once the network has ended";
}

} // namespace
} // namespace ombrivane::network
