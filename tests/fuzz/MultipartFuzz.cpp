// Forms of many parts: whatever the values are, a strict reader finds each of them, byte for byte.
#include "Require.h"
#include "services/MultipartForm.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace {

using Parts = std::vector<std::pair<std::string, std::string>>; ///< head and value of each

/// Ends the process for a form that is not exactly parts between boundaries.
Parts partsOf(ombrivane::MultipartForm& form) {
    const std::string type = form.contentType();
    const std::string prefix = "multipart/form-data; boundary=";
    require(type.starts_with(prefix), "the type names the boundary");
    const std::string line = "--" + type.substr(prefix.size());
    std::string body;
    for (const auto& piece : form.finished())
        body += piece;
    Parts parts;
    while (!body.starts_with(line + "--")) {
        require(body.starts_with(line + "\r\n"), "a part begins with the boundary");
        body.erase(0, line.size() + 2);
        const std::size_t value = body.find("\r\n\r\n");
        const std::size_t end = body.find("\r\n" + line);
        require(value < end && end != std::string::npos, "a part has a head and an end");
        parts.emplace_back(body.substr(0, value), body.substr(value + 4, end - value - 4));
        body.erase(0, end + 2);
    }
    require(body == line + "--", "nothing follows the last boundary");
    return parts;
}

} // namespace

/// The bytes are cut at each NUL into values, in turn of a text and of a file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ombrivane::MultipartForm form;
    Parts expected;
    std::string rest(data, data + size);
    for (bool more = true; more;) {
        const std::size_t cut = rest.find('\0');
        more = cut != std::string::npos;
        const std::string value = rest.substr(0, cut);
        if (more) rest.erase(0, cut + 1);
        if (expected.size() % 2 == 0) {
            form.addText("passenger", value);
            expected.emplace_back("Content-Disposition: form-data; name=\"passenger\"", value);
        } else {
            form.addFile("file[]", "image.png", "image/png", value);
            expected.emplace_back(
                "Content-Disposition: form-data; name=\"file[]\"; filename=\"image.png\"\r\n"
                "Content-Type: image/png",
                value);
        }
    }
    require(partsOf(form) == expected, "every value is read as it was added");
    return 0;
}
