#include "services/MultipartForm.h"

#include "support/Uuid.h"

#include <fmt/core.h>

namespace ombrivane {

MultipartForm::MultipartForm() : boundary_("Boundary-" + Uuid::random().text()) {}

std::string MultipartForm::contentType() const { return "multipart/form-data; boundary=" + boundary_; }

void MultipartForm::addText(std::string_view name, std::string_view value) {
    pieces_.push_back(fmt::format(
        "--{}\r\nContent-Disposition: form-data; name=\"{}\"\r\n\r\n{}\r\n", boundary_, name, value));
}

void MultipartForm::addFile(std::string_view name, std::string_view fileName, std::string_view type,
                            std::string data) {
    pieces_.push_back(fmt::format("--{}\r\nContent-Disposition: form-data; name=\"{}\"; filename=\"{}\"\r\n"
                                  "Content-Type: {}\r\n\r\n",
                                  boundary_,
                                  name,
                                  fileName,
                                  type));
    pieces_.push_back(std::move(data));
    pieces_.emplace_back("\r\n");
}

std::string MultipartForm::finished() {
    pieces_.push_back("--" + boundary_ + "--");
    std::size_t size = 0;
    for (const auto& piece : pieces_)
        size += piece.size();
    std::string bytes;
    bytes.reserve(size);
    for (auto& piece : pieces_) {
        bytes += piece;
        piece = std::string(); // with its memory
    }
    pieces_.clear();
    return bytes;
}

} // namespace ombrivane
