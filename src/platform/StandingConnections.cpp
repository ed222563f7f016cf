#include "platform/StandingConnections.h"

#include <algorithm>
#include <utility>

namespace ombrivane {
namespace {

std::string part(CURLU* url, CURLUPart which) {
    char* text = nullptr;
    if (curl_url_get(url, which, &text, CURLU_DEFAULT_PORT) != CURLUE_OK) return "";
    std::string copy = text;
    curl_free(text);
    return copy;
}

/// "host:port" of `url`; empty where it has none.
std::string serverOf(const std::string& url) {
    const std::unique_ptr<CURLU, decltype(&curl_url_cleanup)> parsed(curl_url(), &curl_url_cleanup);
    if (curl_url_set(parsed.get(), CURLUPART_URL, url.c_str(), 0) != CURLUE_OK) return "";
    return part(parsed.get(), CURLUPART_HOST) + ":" + part(parsed.get(), CURLUPART_PORT);
}

} // namespace

StandingConnections::~StandingConnections() {
    for (auto& standing : standing_)
        close(standing);
}

void StandingConnections::close(Standing& standing) {
    if (standing.opening) curl_multi_remove_handle(multi_, standing.opening.get());
    standing.opening.reset();
    if (standing.socket != noSocket) closeSocket(standing.socket);
    standing.socket = noSocket;
}

template <class Chosen> void StandingConnections::closeWhere(const Chosen& chosen) {
    std::erase_if(standing_, [&](Standing& standing) {
        if (!chosen(standing)) return false;
        close(standing);
        return true;
    });
}

void StandingConnections::open(const std::string& url) {
    closeOld();
    const auto now = std::chrono::steady_clock::now();
    std::string server = serverOf(url);
    const bool isYoung = std::any_of(standing_.begin(), standing_.end(), [&](const Standing& standing) {
        return standing.server == server && now - standing.since < patience_ / 2;
    });
    if (server.empty() || isYoung || standing_.size() >= limits::standingConnections) return;

    Standing standing{.server = std::move(server), .since = now};
    standing.opening.reset(curl_easy_init());
    CURL* curl = standing.opening.get();
    // Plain, so that libcurl stops where TLS would begin.
    curl_easy_setopt(curl, CURLOPT_URL, ("http://" + standing.server).c_str());
    curl_easy_setopt(curl, CURLOPT_CONNECT_ONLY, 1L);
    curl_easy_setopt(curl, CURLOPT_FRESH_CONNECT, 1L);
    curl_easy_setopt(curl, CURLOPT_PROXY, "");
    curl_easy_setopt(curl, CURLOPT_NOPROXY, "");
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_QUICK_EXIT, 1L);
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(patience_.count()));
    if (curl_multi_add_handle(multi_, curl) == CURLM_OK) standing_.push_back(std::move(standing));
}

bool StandingConnections::opened(CURL* handle, CURLcode result) {
    const auto found = std::find_if(standing_.begin(), standing_.end(), [&](const Standing& standing) {
        return standing.opening.get() == handle;
    });
    if (found == standing_.end()) return false;
    Socket socket = noSocket;
    if (result == CURLE_OK) curl_easy_getinfo(handle, CURLINFO_ACTIVESOCKET, &socket);
    // libcurl closes its own descriptor with the handle; the connection lives on in the other.
    const Socket kept = socket == noSocket ? noSocket : duplicateOf(socket);
    close(*found);
    found->socket = kept;
    if (kept == noSocket) standing_.erase(found);
    return true;
}

Socket StandingConnections::take(const std::string& url) {
    closeOld();
    // A server that has not left says nothing before it is spoken to.
    closeWhere(
        [](const Standing& standing) { return standing.socket != noSocket && !isSilent(standing.socket); });
    const std::string server = serverOf(url);
    const auto found = std::find_if(standing_.begin(), standing_.end(), [&](const Standing& standing) {
        return standing.server == server && standing.socket != noSocket;
    });
    if (found == standing_.end()) return noSocket;
    const Socket socket = found->socket;
    standing_.erase(found);
    return socket;
}

void StandingConnections::closeOld() {
    const auto now = std::chrono::steady_clock::now();
    closeWhere([&](const Standing& standing) { return now - standing.since >= patience_; });
}

} // namespace ombrivane
