// Answers as they come over the line: whatever they are, a transfer completes once, within its limits, and
// the frame makes a result or an error of it.
#include "Require.h"
#include "platform/CurlTransfer.h"
#include "services/Frame.h"

#include <cstdint>
#include <string>

#include <sys/socket.h>
#include <unistd.h>

namespace {

using namespace ombrivane;

constexpr std::size_t answerLimit = 1 << 20;

/// The client's end of a line on which the whole answer waits already.
curl_socket_t lineWith(const std::string& answer) {
    int ends[2];
    require(socketpair(AF_UNIX, SOCK_STREAM, 0, ends) == 0, "a line can be made");
    const auto size = static_cast<int>(answer.size() + 4096);
    setsockopt(ends[1], SOL_SOCKET, SO_SNDBUF, &size, sizeof size);
    // What does not fit is an answer that breaks off.
    [[maybe_unused]] const auto sent = send(ends[1], answer.data(), answer.size(), MSG_DONTWAIT);
    shutdown(ends[1], SHUT_WR);
    // The other end stays open for what the client sends.
    static int last = -1;
    if (last >= 0) close(last);
    last = ends[1];
    return ends[0];
}

curl_socket_t open(void* line, curlsocktype /*purpose*/, curl_sockaddr* /*address*/) {
    // One connection: what asks for another gets none.
    return std::exchange(*static_cast<curl_socket_t*>(line), CURL_SOCKET_BAD);
}

int alreadyConnected(void* /*line*/, curl_socket_t /*socket*/, curlsocktype /*purpose*/) {
    return CURL_SOCKOPT_ALREADY_CONNECTED;
}

HttpAnswer transferred(const std::string& bytes) {
    HttpRequest request;
    request.url = "http://127.0.0.1/";
    request.method = "POST";
    request.body = "{}";
    request.answerBytes = answerLimit;
    int completions = 0;
    HttpAnswer heard;
    CurlTransfer transfer(
        request,
        [&](HttpAnswer answer) {
            ++completions;
            heard = std::move(answer);
        },
        CurlSettings());
    // The line in place of a connection has no TLS.
    curl_easy_setopt(transfer.handle(), CURLOPT_PROTOCOLS_STR, "http");
    curl_socket_t line = lineWith(bytes);
    curl_easy_setopt(transfer.handle(), CURLOPT_OPENSOCKETFUNCTION, &open);
    curl_easy_setopt(transfer.handle(), CURLOPT_OPENSOCKETDATA, &line);
    curl_easy_setopt(transfer.handle(), CURLOPT_SOCKOPTFUNCTION, &alreadyConnected);
    transfer.complete(curl_easy_perform(transfer.handle()));
    if (line != CURL_SOCKET_BAD) close(line);
    require(completions == 1, "a transfer completes once");
    return heard;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    HttpAnswer answer = transferred(std::string(data, data + size));
    require(answer.data.has_value() != answer.error.has_value(), "there are bytes or an error");
    if (!answer.data) return 0;
    require(answer.data->size() <= answerLimit, "an answer is within its limit");
    bool wasRead = false;
    const auto error = detail::readAnswer(std::move(answer),
                                          limits::structureBytes,
                                          errorDomain::service,
                                          [&wasRead](const Envelope& /*envelope*/) { wasRead = true; });
    require(error || wasRead, "there is a result or an error");
    return 0;
}
