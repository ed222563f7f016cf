#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ombrivane {

/// The bytes of a `multipart/form-data` body, kept in pieces until they are asked for, so that no picture is
/// copied while the form grows. Names and values go in as they stand, without any escaping.
class MultipartForm {
public:
    /// With a fresh boundary.
    MultipartForm();

    std::string contentType() const;

    void addText(std::string_view name, std::string_view value);
    void addFile(std::string_view name, std::string_view fileName, std::string_view type, std::string data);

    /// All parts and the closing boundary, with no line end after it, as pieces that follow one another. The
    /// form is empty then.
    std::vector<std::string> finished();

private:
    std::string boundary_;
    std::vector<std::string> pieces_;
};

} // namespace ombrivane
