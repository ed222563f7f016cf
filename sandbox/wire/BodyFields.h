// Strict reading of a JSON object of a request: every complaint is a sentence that names the field.
#pragma once

#include "sandbox/Json.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace ombrivane::sandbox {

/// All operations throw `Refusal` for what they do not find. The object must outlive the reader.
class BodyFields {
public:
    /// `where` leads the name of each field in a complaint: "" or "passengers[0].".
    explicit BodyFields(const Json& object, std::string where = "");

    /// The object has these keys, perhaps some of the optional ones, and no others.
    void expectKeys(std::initializer_list<std::string_view> required,
                    std::initializer_list<std::string_view> optional = {}) const;

    [[nodiscard]] bool has(std::string_view key) const { return object_.contains(key); }
    [[nodiscard]] const Json& value(std::string_view key) const;
    [[nodiscard]] const std::string& text(std::string_view key) const;
    [[nodiscard]] const std::string& filledText(std::string_view key) const;
    [[nodiscard]] std::int64_t integer(std::string_view key) const;
    [[nodiscard]] bool boolean(std::string_view key) const;
    [[nodiscard]] const Json& object(std::string_view key) const;
    [[nodiscard]] const Json& array(std::string_view key) const;

    /// The name of a field as complaints give it.
    [[nodiscard]] std::string name(std::string_view key) const { return where_ + std::string(key); }

private:
    const Json& object_;
    std::string where_;
};

} // namespace ombrivane::sandbox
