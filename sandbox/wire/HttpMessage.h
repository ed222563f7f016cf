// What the sandbox reads from a connection and what it answers, as plain values.
#pragma once

#include "sandbox/Json.h"

#include <string>
#include <string_view>
#include <vector>

namespace ombrivane::sandbox {

struct HttpHeader {
    std::string name;
    std::string value;
};

struct HttpRequest {
    std::string method;
    std::string target; ///< path and query as they stood in the request line
    std::string path;
    std::string query; ///< without the question mark, not decoded
    std::vector<HttpHeader> headers;
    std::string body;

    /// The value of the first header of that name in any case of letters, or the empty text.
    [[nodiscard]] std::string header(std::string_view name) const;

    /// The decoded value of a query parameter, or the empty text.
    [[nodiscard]] std::string parameter(std::string_view name) const;
};

struct HttpAnswer {
    int status = 200;
    std::vector<HttpHeader> headers;
    std::string body;
};

/// An answer whose body is that JSON.
HttpAnswer jsonAnswer(const Json& body, int status = 200);

/// {"success":true,"data":...}
HttpAnswer successAnswer(Json data);

/// {"success":false,"data":{"error":...}}
HttpAnswer refusalAnswer(const std::string& message, int status);

/// Equality without regard to the case of ASCII letters.
bool equalIgnoringCase(std::string_view left, std::string_view right);

} // namespace ombrivane::sandbox
