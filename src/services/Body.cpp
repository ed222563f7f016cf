#include "services/Body.h"

#include "base/Error.h"
#include "base/ErrorDomains.h"
#include "words/Words.h"

namespace ombrivane {
namespace {

std::optional<std::string> written(const Json& value) {
    try {
        return value.dump();
    } catch (const Json::exception&) {
        return std::nullopt;
    }
}

} // namespace

Body& Body::add(std::string key, Json value) {
    members_.emplace_back(std::move(key), written(value));
    return *this;
}

Body& Body::addRaw(std::string key, std::string_view json) {
    members_.emplace_back(std::move(key), std::string(json));
    return *this;
}

std::optional<std::string> Body::serialised() const {
    std::string text = "{";
    for (const auto& [key, value] : members_) {
        if (!value) return std::nullopt;
        if (text.size() > 1) text += ',';
        text += Json(key).dump() + ":" + *value;
    }
    return text + "}";
}

std::string Body::serialisedOrFail() const {
    auto text = serialised();
    if (!text)
        throw Error{errorDomain::encoding, 0, said(Text::errorRequestNotWritten), "a text is no UTF-8"};
    return *std::move(text);
}

} // namespace ombrivane
