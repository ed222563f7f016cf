#pragma once

#include <string>
#include <string_view>

namespace ombrivane {

/// The bytes of a `multipart/form-data` body. Names and values go in as they stand, without any escaping.
class MultipartForm {
public:
    /// With a fresh boundary.
    MultipartForm();

    std::string contentType() const;

    void addText(std::string_view name, std::string_view value);
    void addFile(std::string_view name, std::string_view fileName, std::string_view type,
                 std::string_view data);

    /// All parts and the closing boundary, with no line end after it.
    std::string finished() const;

private:
    std::string boundary_;
    std::string bytes_;
};

} // namespace ombrivane
