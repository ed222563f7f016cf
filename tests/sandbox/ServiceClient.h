// A well-behaved client of a running sandbox, for tests of what the service answers.
#pragma once

#include "sandbox/Json.h"
#include "sandbox/Sandbox.h"
#include "tests/sandbox/WireClient.h"

#include <string>

namespace ombrivane::sandbox {

class ServiceClient {
public:
    /// Starts a sandbox of its own and gets a token.
    explicit ServiceClient(Options options = {});

    /// Gets another token, as after another start.
    void renewToken();

    /// The whole answer to a JSON request of the service.
    Json post(const std::string& path, const Json& body);
    Json get(const std::string& path);

    /// `data.error` of an answer, or "" for a success.
    static std::string error(const Json& answer);

    WireAnswer send(const WireRequest& request) const;

    /// The header that carries the token.
    [[nodiscard]] std::string authorization() const { return "Authorization: Bearer " + token_; }

    Sandbox& sandbox() { return sandbox_; }

private:
    Sandbox sandbox_;
    std::string token_;
};

/// The options of the tests: a clock that stands at noon of 1 March 2026.
Options frozenOptions();

/// A search for one adult one way on 10 March 2026.
Json searchBody(const std::string& from, const std::string& to);

/// The same for a round trip until 14 March.
Json roundBody(const std::string& from, const std::string& to);

/// What a client sends that writes its own record back: without the keys that only the service knows.
Json ownRecord(const Json& offer);

} // namespace ombrivane::sandbox
