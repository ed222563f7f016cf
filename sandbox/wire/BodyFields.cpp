#include "sandbox/wire/BodyFields.h"

#include "sandbox/wire/Refusal.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

namespace ombrivane::sandbox {

BodyFields::BodyFields(const Json& object, std::string where) : object_(object), where_(std::move(where)) {
    if (!object.is_object())
        throw Refusal(where_.empty()
                          ? "The request body must be a JSON object."
                          : fmt::format("{} must be an object.", where_.substr(0, where_.size() - 1)));
}

void BodyFields::expectKeys(std::initializer_list<std::string_view> required,
                            std::initializer_list<std::string_view> optional) const {
    for (std::string_view key : required)
        if (!has(key)) throw Refusal(fmt::format("The {} field is missing.", name(key)));
    for (const auto& item : object_.items()) {
        const auto is = [&](std::string_view key) { return key == item.key(); };
        if (std::none_of(required.begin(), required.end(), is) &&
            std::none_of(optional.begin(), optional.end(), is))
            throw Refusal(fmt::format("The {} field is not known here.", name(item.key())));
    }
}

const Json& BodyFields::value(std::string_view key) const {
    const auto found = object_.find(key);
    if (found == object_.end()) throw Refusal(fmt::format("The {} field is missing.", name(key)));
    return *found;
}

const std::string& BodyFields::text(std::string_view key) const {
    const Json& found = value(key);
    if (!found.is_string()) throw Refusal(fmt::format("The {} field must be text.", name(key)));
    return found.get_ref<const std::string&>();
}

const std::string& BodyFields::filledText(std::string_view key) const {
    const std::string& found = text(key);
    if (found.empty()) throw Refusal(fmt::format("The {} field is required.", name(key)));
    return found;
}

std::int64_t BodyFields::integer(std::string_view key) const {
    const Json& found = value(key);
    if (!found.is_number_integer())
        throw Refusal(fmt::format("The {} field must be a whole number.", name(key)));
    return found.get<std::int64_t>();
}

bool BodyFields::boolean(std::string_view key) const {
    const Json& found = value(key);
    if (!found.is_boolean()) throw Refusal(fmt::format("The {} field must be true or false.", name(key)));
    return found.get<bool>();
}

const Json& BodyFields::object(std::string_view key) const {
    const Json& found = value(key);
    if (!found.is_object()) throw Refusal(fmt::format("The {} field must be an object.", name(key)));
    return found;
}

const Json& BodyFields::array(std::string_view key) const {
    const Json& found = value(key);
    if (!found.is_array()) throw Refusal(fmt::format("The {} field must be an array.", name(key)));
    return found;
}

} // namespace ombrivane::sandbox
