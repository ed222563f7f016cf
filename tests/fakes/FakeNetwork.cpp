#include "fakes/FakeNetwork.h"

#include "base/Fault.h"

#include <stdexcept>
#include <utility>

namespace ombrivane::fakes {

void FakeNetwork::send(HttpRequest request, HttpCompletion completion) {
    for (const auto& piece : std::exchange(request.pieces, {}))
        request.body = request.body.value_or("") + piece;
    sent_.push_back(request);
    open_.push_back({std::move(request), std::move(completion)});
}

void FakeNetwork::fetchPicture(const std::string& url, HttpCompletion completion) {
    HttpRequest request;
    request.url = url;
    request.method = "PICTURE";
    send(std::move(request), std::move(completion));
}

void FakeNetwork::answer(std::string data, std::size_t index) {
    complete({std::move(data), std::nullopt}, index);
}

void FakeNetwork::fail(Error error, std::size_t index) { complete({std::nullopt, std::move(error)}, index); }

void FakeNetwork::complete(HttpAnswer answer, std::size_t index) {
    if (index >= open_.size()) throw std::logic_error("no request waits for this answer");
    const Open open = std::move(open_[index]);
    open_.erase(open_.begin() + static_cast<std::ptrdiff_t>(index));
    guarded([&] { open.completion(std::move(answer)); });
}

} // namespace ombrivane::fakes
