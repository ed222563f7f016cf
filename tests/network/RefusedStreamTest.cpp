#include "network/Line.h"
#include "network/TlsServer.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>

#include <arpa/inet.h>

namespace ombrivane::network {
namespace {

/// Frames of HTTP/2, as far as a server needs them that reads every request and refuses it.
class Http2 {
public:
    enum Type : unsigned char { data = 0, headers = 1, resetStream = 3, settings = 4, windowUpdate = 8 };

    struct Frame {
        unsigned char type = 0;
        unsigned char flags = 0;
        std::uint32_t stream = 0;

        bool endsStream() const { return (type == data || type == headers) && (flags & 1U) != 0; }
    };

    explicit Http2(sandbox::TlsConnection& connection) : connection_(connection) {
        const std::uint32_t window = 1U << 24U;
        write({settings}, std::string("\x00\x04", 2) + number(window));
        write({windowUpdate}, number(window));
    }

    /// The next frame without its payload; false at the end of the connection.
    bool read(Frame& frame) {
        std::array<unsigned char, 9> head{};
        if (!take(reinterpret_cast<char*>(head.data()), head.size())) return false;
        frame.type = head[3];
        frame.flags = head[4];
        frame.stream = 0;
        for (std::size_t i = 5; i < 9; ++i)
            frame.stream = frame.stream << 8U | head.at(i);
        std::string payload((head[0] * 256UL + head[1]) * 256UL + head[2], '\0');
        return take(payload.data(), payload.size());
    }

    void acknowledgeSettings() { write({settings, 1}, ""); }
    void refuse(std::uint32_t stream, std::uint32_t reason) {
        write({resetStream, 0, stream}, number(reason));
    }

private:
    static std::string number(std::uint32_t value) {
        const std::uint32_t bytes = htonl(value);
        std::string text(sizeof bytes, '\0');
        std::memcpy(text.data(), &bytes, sizeof bytes);
        return text;
    }

    void write(const Frame& frame, const std::string& payload) {
        std::string bytes = number(static_cast<std::uint32_t>(payload.size())).substr(1);
        bytes += {static_cast<char>(frame.type), static_cast<char>(frame.flags)};
        connection_.write(bytes + number(frame.stream) + payload);
    }

    bool take(char* bytes, std::size_t size) {
        while (size > 0) {
            const std::size_t count = connection_.read(bytes, size);
            if (count == 0) return false;
            bytes += count;
            size -= count;
        }
        return true;
    }

    sandbox::TlsConnection& connection_;
};

int chooseHttp2(SSL* /*ssl*/, const unsigned char** chosen, unsigned char* size, const unsigned char* offered,
                unsigned int offeredSize, void* /*none*/) {
    static constexpr std::array<unsigned char, 12> wanted{
        2, 'h', '2', 8, 'h', 't', 't', 'p', '/', '1', '.', '1'};
    unsigned char* found = nullptr;
    SSL_select_next_proto(&found, size, wanted.data(), wanted.size(), offered, offeredSize);
    *chosen = found;
    return SSL_TLSEXT_ERR_OK;
}

struct Shape {
    const char* path;
    const char* contentType;
    std::string body;
};

struct RefusalCase {
    const char* name;
    std::uint32_t reason;

    friend std::ostream& operator<<(std::ostream& out, const RefusalCase& row) { return out << row.name; }
};

class RefusedStreamTest : public testing::TestWithParam<RefusalCase> {};

TEST_P(RefusedStreamTest, AServerThatReadsARequestAndRefusesItSeesItOnce) {
    std::atomic<int> requests = 0;
    TlsServer server(
        [&](sandbox::TlsConnection& connection) {
            constexpr std::string_view preface = "PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n";
            std::string bytes(preface.size(), '\0');
            bytes.resize(connection.read(bytes.data(), bytes.size()));
            if (bytes != preface) {
                if (readRequest(connection, std::move(bytes))) ++requests;
                return;
            }
            Http2 http(connection);
            for (Http2::Frame frame; http.read(frame);) {
                if (frame.type == Http2::settings && frame.flags == 0) http.acknowledgeSettings();
                if (!frame.endsStream()) continue;
                ++requests;
                http.refuse(frame.stream, GetParam().reason);
            }
        },
        [](SSL_CTX* context) { SSL_CTX_set_alpn_select_cb(context, chooseHttp2, nullptr); });
    CurlNetwork network({.caFile = server.caFile()});
    for (const Shape& shape :
         {Shape{"/get-token", "application/json", R"({"username":"wallet","password":"secret"})"},
          Shape{"/reservation", "application/json", passengers},
          Shape{"/documents", "multipart/form-data; boundary=b", std::string(3'000'000, 'j')},
          Shape{"/kolmiwallet-confirm-order", "application/json", R"({"order":1})"}}) {
        SCOPED_TRACE(shape.path);
        HttpRequest request;
        request.url = server.url(shape.path);
        request.method = "POST";
        request.headers = {{"Content-Type", shape.contentType}};
        request.body = shape.body;
        const HttpAnswer answer = awaited(
            [&](HttpCompletion completion) { network.send(std::move(request), std::move(completion)); });
        EXPECT_TRUE(answer.error);
        EXPECT_EQ(requests.exchange(0), 1);
    }
}

INSTANTIATE_TEST_SUITE_P(Reasons, RefusedStreamTest,
                         testing::Values(RefusalCase{"refused", 7}, RefusalCase{"HTTP/1.1 required", 13}));

} // namespace
} // namespace ombrivane::network
