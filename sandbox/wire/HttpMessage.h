// What the sandbox reads from a connection and what it answers, as plain values.
#pragma once

#include "sandbox/Json.h"

#include <exception>
#include <string>
#include <string_view>
#include <vector>

namespace ombrivane::sandbox {

/// One line of a header, as it was sent.
struct HttpHeader {
    std::string name;  ///< in the sender's letters
    std::string value; ///< without the blanks around it
};

/// A request that was read whole.
struct HttpRequest {
    std::string method;              ///< "POST"
    std::string target;              ///< path and query as they stood in the request line
    std::string path;                ///< up to the question mark
    std::string query;               ///< without the question mark, not decoded
    std::vector<HttpHeader> headers; ///< in the order in which they came
    std::string body;                ///< the bytes as they were sent

    /// The value of the first header of that name in any case of letters, or the empty text.
    [[nodiscard]] std::string header(std::string_view name) const;

    /// The decoded value of a query parameter, or the empty text.
    [[nodiscard]] std::string parameter(std::string_view name) const;
};

/// What is answered, before a fault ends the connection in its own way.
struct HttpAnswer {
    int status = 200;                ///< of HTTP
    std::vector<HttpHeader> headers; ///< but Content-Length and Connection
    std::string body;                ///< all of it
    std::string refusal = {};        ///< the sentence in the body of a refusal; empty for all others
};

/// An answer whose body is that JSON.
HttpAnswer jsonAnswer(const Json& body, int status = 200);

/// {"success":true,"data":...}
HttpAnswer successAnswer(Json data);

/// {"success":false,"data":{"error":...}}
HttpAnswer refusalAnswer(const std::string& message, int status);

/// What a client is told of a mistake of the sandbox's own: a refusal with status 500.
HttpAnswer cannotAnswer(const std::exception& failure);

/// Equality without regard to the case of ASCII letters.
bool equalIgnoringCase(std::string_view left, std::string_view right);

} // namespace ombrivane::sandbox
