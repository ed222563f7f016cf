#include "sandbox/wire/RequestReader.h"

#include "sandbox/wire/Refusal.h"

#include <array>
#include <charconv>

namespace ombrivane::sandbox {

namespace {

constexpr std::size_t headLimit = 64 * 1024;
constexpr std::size_t bodyLimit = 256 * 1024 * 1024;

std::string_view line(std::string_view& rest) {
    const std::string_view found = rest.substr(0, rest.find("\r\n"));
    rest.remove_prefix(found.size() + 2);
    return found;
}

std::string_view withoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// `head` runs from the request line to the last header's line end.
HttpRequest parseHead(std::string_view head) {
    HttpRequest request;
    const std::string_view requestLine = line(head);
    const std::size_t first = requestLine.find(' ');
    const std::size_t last = requestLine.rfind(' ');
    if (first == std::string_view::npos || first == last || requestLine.substr(last + 1) != "HTTP/1.1")
        throw Refusal("This is no HTTP/1.1 request line.", 400);
    request.method = requestLine.substr(0, first);
    request.target = requestLine.substr(first + 1, last - first - 1);
    const std::size_t question = request.target.find('?');
    request.path = request.target.substr(0, question);
    if (question != std::string::npos) request.query = request.target.substr(question + 1);
    while (!head.empty()) {
        const std::string_view field = line(head);
        const std::size_t colon = field.find(':');
        if (colon == std::string_view::npos) throw Refusal("A header has no colon.", 400);
        request.headers.push_back(
            {std::string(field.substr(0, colon)), std::string(withoutBlanks(field.substr(colon + 1)))});
    }
    return request;
}

std::size_t bodySize(const HttpRequest& request) {
    if (!request.header("Transfer-Encoding").empty()) throw Refusal("A Content-Length is needed.", 411);
    const std::string length = request.header("Content-Length");
    if (length.empty()) return 0;
    std::size_t size = 0;
    const auto [end, failure] = std::from_chars(length.data(), length.data() + length.size(), size);
    if (failure != std::errc() || end != length.data() + length.size())
        throw Refusal("The Content-Length is no number.", 400);
    if (size > bodyLimit) throw Refusal("The request is too large.", 413);
    return size;
}

} // namespace

std::optional<HttpRequest> RequestReader::next() {
    std::size_t headEnd = 0;
    while ((headEnd = unread_.find("\r\n\r\n")) == std::string::npos) {
        if (unread_.size() > headLimit) throw Refusal("The headers are too large.", 431);
        if (!readMore()) return std::nullopt;
    }
    HttpRequest request = parseHead(std::string_view(unread_).substr(0, headEnd + 2));
    unread_.erase(0, headEnd + 4);

    const std::size_t size = bodySize(request);
    if (unread_.size() < size && equalIgnoringCase(request.header("Expect"), "100-continue"))
        connection_.write("HTTP/1.1 100 Continue\r\n\r\n");
    while (unread_.size() < size)
        if (!readMore()) return std::nullopt;
    request.body = unread_.substr(0, size);
    unread_.erase(0, size);
    return request;
}

bool RequestReader::readMore() {
    std::array<char, 16 * 1024> buffer{};
    const std::size_t count = connection_.read(buffer.data(), buffer.size());
    unread_.append(buffer.data(), count);
    return count > 0;
}

} // namespace ombrivane::sandbox
