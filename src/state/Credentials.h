#pragma once

#include <string>

namespace ombrivane {

/// Whom the service takes a request to come from.
struct Credentials {
    std::string accessToken;
    std::string userType;
};

/// While it lives, requests go out with the given credentials and not with those of the process: what was
/// begun for one customer is finished for him, whoever has signed out or in meanwhile. On the stack of the
/// main thread.
class SendingAs {
public:
    /// @param credentials live longer than this
    explicit SendingAs(const Credentials& credentials);
    ~SendingAs();
    SendingAs(const SendingAs&) = delete;
    SendingAs& operator=(const SendingAs&) = delete;

private:
    const Credentials* before_;
};

} // namespace ombrivane
