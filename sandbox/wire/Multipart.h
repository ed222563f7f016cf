// Reads a multipart form to the letter: what does not have the exact shape is refused with the reason.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ombrivane::sandbox {

struct FormPart {
    std::string name;
    std::optional<std::string> fileName; ///< of a file part
    std::string contentType;             ///< of a file part
    std::string_view data;               ///< within the body that was parsed
};

/// `contentType` is the header of the request. Every line ends in CR LF, a file part has exactly a
/// disposition and a type, a text part only a disposition, and the body ends right behind the closing
/// boundary. Throws `Refusal`. The body must outlive the parts.
std::vector<FormPart> parseForm(const std::string& contentType, std::string_view body);

} // namespace ombrivane::sandbox
