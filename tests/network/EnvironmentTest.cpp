#include "network/Line.h"
#include "network/TlsServer.h"
#include "platform/Platform.h"

#include <curl/curl.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <thread>

#include <unistd.h>

namespace ombrivane::network {
namespace {

/// What a hostile environment names. Libraries read it once, when a process first uses them: each test runs
/// in a process of its own, which is started with it.
class EnvironmentTest : public testing::Test {
protected:
    EnvironmentTest() {
        testing::FLAGS_gtest_death_test_style = "threadsafe";
        std::filesystem::create_directories(folder_);
        std::ofstream(folder_ + "/.netrc") << "machine 127.0.0.1 login somebody password secret\n";
        std::ofstream(folder_ + "/openssl.cnf") << "openssl_conf = all\n[all]\nssl_conf = ssl\n"
                                                   "[ssl]\nsystem_default = weak\n"
                                                   "[weak]\nMinProtocol = TLSv1\n"
                                                   "CipherString = ALL:eNULL:@SECLEVEL=0\n";
        for (const auto& [name, value] : named_) {
            if (const char* before = std::getenv(name)) before_.emplace(name, before);
            ::setenv(name, value.c_str(), 1);
        }
    }
    ~EnvironmentTest() override {
        std::filesystem::remove_all(folder_);
        for (const auto& [name, value] : named_) {
            const auto before = before_.find(name);
            if (before == before_.end())
                ::unsetenv(name);
            else
                ::setenv(name, before->second.c_str(), 1);
        }
    }

    std::string keyLog() const { return folder_ + "/keys"; }

    /// The end of the process that a test runs in.
    [[noreturn]] void end() const {
        std::filesystem::remove_all(folder_);
        std::exit(HasFailure() ? 1 : 0);
    }

    static HttpAnswer post(const TlsServer& server, const CurlSettings& settings) {
        CurlNetwork network(settings);
        return awaited([&](HttpCompletion completion) {
            HttpRequest request;
            request.url = server.url();
            request.method = "POST";
            request.body = R"({"password":"secret"})";
            network.send(std::move(request), std::move(completion));
        });
    }

private:
    const std::string folder_ = testing::TempDir() + "hostile-environment-" + std::to_string(::getpid());
    const std::map<const char*, std::string> named_{{"SSLKEYLOGFILE", keyLog()},
                                                    {"OPENSSL_CONF", folder_ + "/openssl.cnf"},
                                                    {"HOME", folder_},
                                                    {"NETRC", folder_ + "/.netrc"}};
    std::map<std::string, std::string> before_;
};

/// Answers each request with its own head.
void echoes(sandbox::TlsConnection& connection) {
    const auto request = readRequest(connection);
    if (!request) return;
    const std::string head = request->substr(0, request->find("\r\n\r\n"));
    connection.write("HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(head.size()) + "\r\n\r\n" + head);
}

TEST_F(EnvironmentTest, NoKeyIsLoggedAndNoPasswordAdded) {
    const auto test = [this] {
        TlsServer server(echoes);
        const auto head = post(server, {.caFile = server.caFile()}).data.value_or("Authorization: none");
        EXPECT_EQ(head.find("Authorization"), std::string::npos) << head;
        CurlNetwork network({.caFile = server.caFile()});
        EXPECT_TRUE(awaited([&](auto completion) { network.fetchPicture(server.url(), completion); }).data);
        // libcurl opens the file when it starts, before it is told anything.
        EXPECT_TRUE(!std::filesystem::exists(keyLog()) || std::filesystem::is_empty(keyLog()));
    };
    EXPECT_EXIT((test(), end()), testing::ExitedWithCode(0), "");
}

/// A wallet whose main function returns while a request is under way: what its completion would use has gone.
TEST_F(EnvironmentTest, AProcessMayEndInTheMiddleOfARequest) {
    const auto test = [] {
        static auto& server = *new TlsServer(saysNothing);
        static int called = 0;
        std::atexit([] { std::_Exit(called); }); // behind what the platform does at the end
        Platform ports;
        ports.network = std::make_shared<CurlNetwork>(CurlSettings{.caFile = server.caFile()});
        Platform::install(std::move(ports));
        HttpRequest request;
        request.url = server.url();
        platform().network->send(std::move(request), [](const HttpAnswer&) { called = 1; });
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        std::exit(0);
    };
    EXPECT_EXIT(test(), testing::ExitedWithCode(0), "");
}

TEST_F(EnvironmentTest, NoWeakerTlsIsSpoken) {
    struct Row {
        int version;
        const char* ciphers;
        bool isGood;
    };
    const auto test = [this] {
        for (const Row& row : {Row{TLS1_1_VERSION, "ALL:@SECLEVEL=0", false},
                               Row{TLS1_2_VERSION, "eNULL:@SECLEVEL=0", false},
                               Row{TLS1_2_VERSION, "DEFAULT", true},
                               Row{TLS1_3_VERSION, "DEFAULT", true}}) {
            std::atomic<int> requests = 0;
            TlsServer server(
                [&](sandbox::TlsConnection& connection) {
                    ++requests;
                    echoes(connection);
                },
                [&](SSL_CTX* context) {
                    SSL_CTX_set_max_proto_version(context, row.version);
                    SSL_CTX_set_cipher_list(context, row.ciphers);
                });
            const HttpAnswer answer = post(server, {.caFile = server.caFile()});
            EXPECT_EQ(answer.error ? answer.error->code : 0, row.isGood ? 0 : CURLE_SSL_CONNECT_ERROR)
                << row.version << " " << row.ciphers;
            EXPECT_EQ(requests, row.isGood ? 1 : 0);
        }
    };
    EXPECT_EXIT((test(), end()), testing::ExitedWithCode(0), "");
}

TEST_F(EnvironmentTest, NoOtherAuthorityIsTrusted) {
    const auto test = [this] {
        TlsServer server(echoes);
        for (const char* name : {"SSL_CERT_FILE", "CURL_CA_BUNDLE"})
            ::setenv(name, server.caFile().c_str(), 1);
        EXPECT_EQ(post(server, {}).error.value_or(noAnswer).code, CURLE_PEER_FAILED_VERIFICATION);
    };
    EXPECT_EXIT((test(), end()), testing::ExitedWithCode(0), "");
}

TEST_F(EnvironmentTest, AProxyIsAskedOnlyWhenTheHostNamesOne) {
    const auto test = [this] {
        TlsServer server(echoes);
        TlsServer proxy(echoes);
        const std::string address = "http" + proxy.url("").substr(5);
        for (const char* name : {"https_proxy", "HTTPS_PROXY", "http_proxy", "all_proxy", "ALL_PROXY"})
            ::setenv(name, address.c_str(), 1);
        EXPECT_TRUE(post(server, {.caFile = server.caFile()}).data);
        EXPECT_EQ(proxy.connections(), 0);

        ::setenv("no_proxy", "*", 1);
        EXPECT_TRUE(post(server, {.caFile = server.caFile(), .proxy = address}).error);
        EXPECT_EQ(proxy.connections(), 1);
        EXPECT_EQ(server.connections(), 1) << "past the proxy that the host named";
    };
    EXPECT_EXIT((test(), end()), testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace ombrivane::network
