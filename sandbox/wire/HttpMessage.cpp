#include "sandbox/wire/HttpMessage.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <utility>

namespace ombrivane::sandbox {

namespace {

char lower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string percentDecoded(std::string_view text) {
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned value = 0;
        if (text[i] == '+') {
            decoded += ' ';
        } else if (text[i] == '%' && i + 2 < text.size() &&
                   std::from_chars(&text[i + 1], &text[i + 1] + 2, value, 16).ptr == &text[i + 1] + 2) {
            decoded += static_cast<char>(static_cast<unsigned char>(value));
            i += 2;
        } else {
            decoded += text[i];
        }
    }
    return decoded;
}

} // namespace

bool equalIgnoringCase(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) {
        return lower(a) == lower(b);
    });
}

std::string HttpRequest::header(std::string_view name) const {
    for (const HttpHeader& candidate : headers)
        if (equalIgnoringCase(candidate.name, name)) return candidate.value;
    return {};
}

std::string HttpRequest::parameter(std::string_view name) const {
    std::string_view rest = query;
    while (!rest.empty()) {
        const std::string_view pair = rest.substr(0, rest.find('&'));
        rest.remove_prefix(std::min(rest.size(), pair.size() + 1));
        const std::size_t equals = pair.find('=');
        if (pair.substr(0, equals) == name && equals != std::string_view::npos)
            return percentDecoded(pair.substr(equals + 1));
    }
    return {};
}

HttpAnswer jsonAnswer(const Json& body, int status) {
    return {status, {{"Content-Type", "application/json"}}, toText(body)};
}

HttpAnswer successAnswer(Json data) {
    Json envelope{{"success", true}};
    envelope["data"] = std::move(data);
    return jsonAnswer(envelope);
}

HttpAnswer refusalAnswer(const std::string& message, int status) {
    HttpAnswer answer = jsonAnswer({{"success", false}, {"data", {{"error", message}}}}, status);
    answer.refusal = message;
    return answer;
}

HttpAnswer cannotAnswer(const std::exception& failure) {
    return refusalAnswer(fmt::format("The sandbox cannot answer this: {}", failure.what()), 500);
}

} // namespace ombrivane::sandbox
